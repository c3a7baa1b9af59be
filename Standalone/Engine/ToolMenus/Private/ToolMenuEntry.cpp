// Copyright Corvane. MIT License.
#include "ToolMenuEntry.h"

#include "ToolMenus.h"

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
	const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox,
	FName InTutorialHighlightName)
{
	FToolMenuEntry Entry;
	Entry.Name = InName;
	Entry.Owner = UToolMenus::Get()->CurrentOwner();
	Entry.Type = EMultiBlockType::ToolBarComboButton;
	Entry.TutorialHighlightName = InTutorialHighlightName;
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	Entry.Action = InAction;
	Entry.ToolBarData.ComboButtonContextMenuGenerator = InMenuContentGenerator;
	Entry.ToolBarData.bSimpleComboBox = bInSimpleComboBox;
	return Entry;
}
