// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Misc/ITransaction.h"
#include "UObject/Object.h"

#include "Transactor.generated.h"

class FTransaction;

/**
 * The undo history. A step holds each reflected value that differs between its begin and its end, and each actor that
 * was spawned in between. What changes outside of steps is no part of it and is left alone by undo and redo.
 */
UCLASS()
class UNREALED_API UTransactor : public UObject
{
	GENERATED_BODY()

public:
	/** Begins a step, or goes on with the one that is being recorded, which keeps its description. @return how many
	 * Begins were open before. */
	int32 Begin(const FText& Description);

	/**
	 * Ends what the last Begin began. The outermost End makes a step if anything has changed: packages get dirty, what
	 * could be redone is forgotten. Else nothing happens.
	 * @return how many Begins were open before; 0 if none was, and nothing is done.
	 */
	int32 End();

	/** Forgets all steps and the one that is being recorded. There is nobody to tell the reason. */
	void Reset(const FText& Reason);

	/** Whether there is a step to undo, and none is being recorded. */
	bool CanUndo() const { return OpenCount == 0 && NumUndone < Steps.Num(); }
	bool CanRedo() const { return OpenCount == 0 && NumUndone > 0; }
	/** The step that would be undone or redone; without a title if there is none. */
	FTransactionContext GetUndoContext() const;
	FTransactionContext GetRedoContext() const;

	/**
	 * Takes the newest step back: the actors that it spawned and the values of objects that still exist. Each object
	 * is told by PostEditUndo, and its package is dirty.
	 * @param bCanRedo false forgets the step and all that could be redone.
	 * @return false if that can't be.
	 */
	bool Undo(bool bCanRedo = true);

	/** Makes the last step that was undone again. @return false if that can't be. */
	bool Redo();

	void BeginDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	void StopRecording();
	void ForgetUndone();

	/** Oldest first; the last NumUndone of them are undone. */
	TArray<TSharedPtr<FTransaction>> Steps;
	int32 NumUndone = 0;
	/** The step that is being recorded, and how many Begins have had no End yet. */
	TSharedPtr<FTransaction> Open;
	int32 OpenCount = 0;
};
