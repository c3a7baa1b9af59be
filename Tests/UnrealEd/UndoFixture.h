// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "Kismet/GameplayStatics.h"
#include "TestEditor.h"
#include "UndoActor.h"
#include "UObject/Package.h"

/** An editor with an empty level and an empty history, and one actor that was there before the history. */
class FUndoFixture : public ::testing::Test
{
protected:
	FUndoFixture() : Actor(*Spawn()) { Clean(); }

	AUndoActor* Spawn() const { return Editor.World()->SpawnActor<AUndoActor>(); }

	/** One step, in which Change is done after the objects were told. */
	static void Do(
		const std::function<void()>& Change, const std::vector<UObject*>& Objects, const TCHAR* Title = TEXT("Step"))
	{
		GEditor->BeginTransaction(FText::FromString(Title));
		for (UObject* Object : Objects)
		{
			EXPECT_TRUE(Object->Modify());
		}
		Change();
		GEditor->EndTransaction();
	}

	/** One step that spawns an actor. */
	AUndoActor* SpawnInStep() const
	{
		AUndoActor* Spawned = nullptr;
		Do([&] { Spawned = Spawn(); }, {}, TEXT("Spawn"));
		return Spawned;
	}

	static bool Undo() { return GEditor->UndoTransaction(); }
	static bool Redo() { return GEditor->RedoTransaction(); }
	static void Collect() { CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS); }
	bool IsDirty() const { return Editor.World()->GetOutermost()->IsDirty(); }
	void Clean() const { Editor.World()->GetOutermost()->SetDirtyFlag(false); }

	TArray<AActor*> GetActors() const
	{
		TArray<AActor*> Actors;
		UGameplayStatics::GetAllActorsOfClass(Editor.World(), AActor::StaticClass(), Actors);
		return Actors;
	}

	FTestEditor Editor;
	AUndoActor& Actor;
};
