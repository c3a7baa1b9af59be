// Copyright Corvane. MIT License.
#include "Framework/Commands/UICommandInfo.h"

#include "Framework/Commands/InputBindingManager.h"

FBindingContext::FBindingContext(
	const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
	: ContextName(InContextName),
	  ContextDesc(InContextDesc),
	  ContextParent(InContextParent),
	  StyleSetName(InStyleSetName)
{}

void FUICommandInfo::MakeCommandInfo(const TSharedRef<class FBindingContext>& InContext,
	TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel,
	const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType,
	const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord)
{
	const TSharedRef<FUICommandInfo> Command = MakeShareable(new FUICommandInfo());
	Command->CommandName = InCommandName;
	Command->Label = InCommandLabel;
	Command->Description = InCommandDesc;
	Command->Icon = InIcon;
	Command->UserInterfaceType = InUserInterfaceType;
	Command->DefaultChord = InDefaultChord;
	Command->AlternateDefaultChord = InAlternateDefaultChord;
	FInputBindingManager::Get().CreateInputCommand(InContext, Command);
	OutCommand = Command;
}

const FInputChord& FUICommandInfo::GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const
{
	return InChordIndex == EMultipleKeyBindingIndex::Primary ? DefaultChord : AlternateDefaultChord;
}
