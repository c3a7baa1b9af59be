// Copyright Corvane. MIT License.
#include "ToolMenuEntry.h"

#include "ToolMenus.h"

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
	const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox,
	FName InTutorialHighlightName)
{
	FToolMenuEntry Entry = InitToolBarButton(InName, InAction, InLabel, InToolTip, InIcon, InTutorialHighlightName);
	Entry.Type = EMultiBlockType::ToolBarComboButton;
	Entry.ToolBarData.ComboButtonContextMenuGenerator = InMenuContentGenerator;
	Entry.ToolBarData.bSimpleComboBox = bInSimpleComboBox;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction,
	const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
	FName InTutorialHighlightName)
{
	FToolMenuEntry Entry;
	Entry.Name = InName;
	Entry.Owner = UToolMenus::Get()->CurrentOwner();
	Entry.Type = EMultiBlockType::ToolBarButton;
	Entry.TutorialHighlightName = InTutorialHighlightName;
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	Entry.Action = InAction;
	return Entry;
}
