// Copyright Corvane. MIT License.
#pragma once

#include "Framework/Commands/Commands.h"
#include "Internationalization/Internationalization.h"

/** Commands of all looks for the tests of this folder. */
class FTestCommands : public TCommands<FTestCommands>
{
public:
	FTestCommands()
		: TCommands<FTestCommands>(
			  "TestCommands", NSLOCTEXT("Contexts", "Test", "Test Commands"), "ParentCommands", "TestStyle")
	{}
	virtual void RegisterCommands() override
	{
		Make(Open, "Open", NSLOCTEXT("Test", "Open", "Open It"), NSLOCTEXT("Test", "Open_ToolTip", "Opens it"),
			EUserInterfaceActionType::Button);
		Make(Light, "Light", NSLOCTEXT("Test", "Light", "Light"), NSLOCTEXT("Test", "Light_ToolTip", "Light on/off"),
			EUserInterfaceActionType::ToggleButton);
		FUICommandInfo::MakeCommandInfo(AsShared(), Keyed, "Keyed", NSLOCTEXT("Test", "Keyed", "Keyed"), FText(),
			FSlateIcon("TestStyle", "Test.Keyed"), EUserInterfaceActionType::Check, FInputChord(EKeys::A),
			FInputChord(EKeys::V));
	}

	TSharedPtr<FUICommandInfo> Open;
	TSharedPtr<FUICommandInfo> Light;
	TSharedPtr<FUICommandInfo> Keyed;

private:
	void Make(TSharedPtr<FUICommandInfo>& OutCommand, const FName Name, const FText& Label, const FText& ToolTip,
		EUserInterfaceActionType Type)
	{
		FUICommandInfo::MakeCommandInfo(
			AsShared(), OutCommand, Name, Label, ToolTip, FSlateIcon(), Type, FInputChord(), FInputChord());
	}
};
