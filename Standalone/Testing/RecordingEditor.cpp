// Copyright Corvane. MIT License.
#include "RecordingEditor.h"

#include "Editor.h"
#include "Templates/Casts.h"

URecordingEditor& URecordingEditor::Get()
{
	return *CastChecked<URecordingEditor>(GEditor);
}

void URecordingEditor::SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors)
{
	SelectionCalls.Add(FSelectionCall{nullptr, {bNoteSelectionChange, bDeselectBSPSurfs, WarnAboutManyActors}});
	Super::SelectNone(bNoteSelectionChange, bDeselectBSPSurfs, WarnAboutManyActors);
}

void URecordingEditor::SelectActor(
	AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden, bool bForceRefresh)
{
	SelectionCalls.Add(FSelectionCall{Actor, {bInSelected, bNotify, bSelectEvenIfHidden, bForceRefresh}});
	Super::SelectActor(Actor, bInSelected, bNotify, bSelectEvenIfHidden, bForceRefresh);
}
