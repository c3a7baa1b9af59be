// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"

#include "RecordingEditor.generated.h"

/** An editor that remembers how it was asked to select, and does it. */
UCLASS()
class URecordingEditor : public UEditorEngine
{
	GENERATED_BODY()

public:
	/** One call of SelectNone or SelectActor, with its arguments in their order. */
	struct FSelectionCall
	{
		/** Null for SelectNone. */
		AActor* Actor;
		TArray<int32> Flags;
	};

	/** GEditor as one of this class; fatal if it is another. */
	static URecordingEditor& Get();

	void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true) override;
	void SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false,
		bool bForceRefresh = false) override;

	TArray<FSelectionCall> SelectionCalls;
};
