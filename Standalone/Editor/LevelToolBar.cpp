// Copyright Corvane. MIT License.
#include "LevelToolBar.h"

#include "Editor.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "LevelToolBar"

namespace
{
	TAttribute<FText> Ask(FText (*GetText)())
	{
		return TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateStatic(GetText));
	}

	FText GetUndoTip()
	{
		return GEditor->Trans->CanUndo()
			? FText::Format(LOCTEXT("UndoStep", "Undo: {0} (Ctrl+Z)"), GEditor->Trans->GetUndoContext().Title)
			: LOCTEXT("UndoNothing", "Undo (Ctrl+Z)");
	}

	FText GetRedoTip()
	{
		return GEditor->Trans->CanRedo()
			? FText::Format(LOCTEXT("RedoStep", "Redo: {0} (Ctrl+Y)"), GEditor->Trans->GetRedoContext().Title)
			: LOCTEXT("RedoNothing", "Redo (Ctrl+Y)");
	}

	FToolMenuSection& FindSection(const FName Name)
	{
		return UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar")->FindOrAddSection(Name);
	}
}

FLevelToolBar::FLevelToolBar()
{
	const FToolMenuOwnerScoped Scope(GetOwner());
	AddFileButtons();
	AddEditButtons();
}

FLevelToolBar::~FLevelToolBar()
{
	UToolMenus::UnregisterOwner(GetOwner());
}

FToolMenuOwner FLevelToolBar::GetOwner()
{
	return FToolMenuOwner("StandaloneEditor");
}

void FLevelToolBar::AddFileButtons()
{
	const FUIAction Save(FExecuteAction::CreateLambda([this] { OnSave.ExecuteIfBound(); }),
		FCanExecuteAction::CreateLambda([this] { return OnSave.IsBound(); }));
	FindSection("File").AddEntry(FToolMenuEntry::InitToolBarButton(
		"Save", Save, LOCTEXT("Save", "Save Current"), LOCTEXT("SaveTip", "Saves the current level to disk (Ctrl+S)")));
}

void FLevelToolBar::AddEditButtons()
{
	const FUIAction Undo(FExecuteAction::CreateLambda([] { GEditor->UndoTransaction(); }),
		FCanExecuteAction::CreateLambda([] { return GEditor->Trans->CanUndo(); }));
	const FUIAction Redo(FExecuteAction::CreateLambda([] { GEditor->RedoTransaction(); }),
		FCanExecuteAction::CreateLambda([] { return GEditor->Trans->CanRedo(); }));
	FToolMenuSection& Section = FindSection("Edit");
	Section.AddEntry(FToolMenuEntry::InitToolBarButton("Undo", Undo, LOCTEXT("Undo", "Undo"), Ask(GetUndoTip)));
	Section.AddEntry(FToolMenuEntry::InitToolBarButton("Redo", Redo, LOCTEXT("Redo", "Redo"), Ask(GetRedoTip)));
}

#undef LOCTEXT_NAMESPACE
