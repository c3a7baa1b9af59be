// Copyright Corvane. MIT License.
#pragma once

#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuOwner.h"

#include "ToolMenuEntry.generated.h"

/** What an entry has only in a toolbar. */
struct FToolMenuEntryToolBarData
{
	/** Makes the menu that a combo button opens. */
	FNewToolMenuChoice ComboButtonContextMenuGenerator;
	/** Without icon and label. */
	bool bSimpleComboBox = false;
};

/** One entry of a menu or toolbar. */
USTRUCT()
struct TOOLMENUS_API FToolMenuEntry
{
	GENERATED_BODY()

	/**
	 * A toolbar button that opens a menu; its owner is the current one.
	 * @param InAction tells whether the button can be used.
	 */
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
		const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false,
		FName InTutorialHighlightName = NAME_None);

	/** A toolbar button that does the action itself; its owner is the current one. */
	static FToolMenuEntry InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction,
		const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), FName InTutorialHighlightName = NAME_None);

	FName Name;
	FToolMenuOwner Owner;
	EMultiBlockType Type = EMultiBlockType::None;
	/** The name by which a tutorial points at the entry. */
	FName TutorialHighlightName;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	FToolUIActionChoice Action;
	FToolMenuEntryToolBarData ToolBarData;
};
