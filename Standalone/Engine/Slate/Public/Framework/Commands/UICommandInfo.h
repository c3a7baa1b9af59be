// Copyright Corvane. MIT License.
#pragma once

#include "Framework/Commands/InputChord.h"
#include "Internationalization/Text.h"
#include "Templates/SharedPointer.h"
#include "Textures/SlateIcon.h"
#include "UObject/NameTypes.h"

/** How a command looks in menus and toolbars. */
enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton,
};

/** A command can have two chords. */
enum class EMultipleKeyBindingIndex : uint8
{
	Primary = 0,
	Secondary,
	NumChords,
};

/** A named group of commands. */
class SLATE_API FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	FBindingContext(
		const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName);
	virtual ~FBindingContext() = default;

	const FName& GetContextName() const { return ContextName; }
	const FText& GetContextDesc() const { return ContextDesc; }
	/** NAME_None for a group of its own. */
	const FName& GetContextParent() const { return ContextParent; }
	/** The set in which the commands' icons are. */
	const FName& GetStyleSetName() const { return StyleSetName; }

private:
	FName ContextName;
	FText ContextDesc;
	FName ContextParent;
	FName StyleSetName;
};

/** What a command is called and looks like. What it does is said by the command list that maps it. */
class SLATE_API FUICommandInfo
{
public:
	/**
	 * Makes a command, known to FInputBindingManager from then on. Fatal when the context has a command of that name,
	 * or when another context has the context's name.
	 */
	static void MakeCommandInfo(const TSharedRef<class FBindingContext>& InContext,
		TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel,
		const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType,
		const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord());

	const FText& GetLabel() const { return Label; }
	/** The tooltip. */
	const FText& GetDescription() const { return Description; }
	const FSlateIcon& GetIcon() const { return Icon; }
	FName GetCommandName() const { return CommandName; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	/** An invalid chord where there is none. */
	const FInputChord& GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const;

private:
	FUICommandInfo() = default;

	FName CommandName;
	FText Label;
	FText Description;
	FSlateIcon Icon;
	EUserInterfaceActionType UserInterfaceType = EUserInterfaceActionType::None;
	FInputChord DefaultChord;
	FInputChord AlternateDefaultChord;
};
