// Copyright Corvane. MIT License.
#include "UndoFixture.h"

/** Actors that steps spawn. The fixture's own actor is always the first one of the level. */
class FUndoSpawnTest : public FUndoFixture
{
protected:
	TArray<AActor*>& GetPlaces() const { return Editor.World()->PersistentLevel->Actors; }
};

TEST_F(FUndoSpawnTest, TakesExactlyThatActorOutOfTheLevel)
{
	AUndoActor* Spawned = SpawnInStep();
	AUndoActor* Later = Spawn();
	Clean();
	ASSERT_TRUE(Undo());
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, Later}));
	EXPECT_EQ(GetPlaces(), (TArray<AActor*>{&Actor, nullptr, Later}));
	EXPECT_TRUE(IsValid(Spawned));
	EXPECT_TRUE(IsDirty());
}

TEST_F(FUndoSpawnTest, PutsTheSameActorBackWithItsValues)
{
	AUndoActor* Spawned = SpawnInStep();
	AUndoActor* Later = Spawn();
	Spawned->Number = 50;
	Spawned->Component->Strength = 60.0f;
	const FString Name = Spawned->GetName();
	Undo();
	EXPECT_EQ(Spawned->TimesTold, 0);
	Collect();
	Clean();
	ASSERT_TRUE(Redo());
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, Spawned, Later}));
	EXPECT_EQ(Spawned->Number, 50);
	EXPECT_EQ(Spawned->Component->Strength, 60.0f);
	EXPECT_EQ(Spawned->Component->Whole, Spawned);
	EXPECT_TRUE(Spawned->GetName().Equals(Name));
	EXPECT_EQ(Spawned->TimesTold, 1);
	EXPECT_TRUE(IsDirty());
}

TEST_F(FUndoSpawnTest, FlagsThePackageOnceTheStepEnds)
{
	GEditor->BeginTransaction(FText());
	Spawn();
	EXPECT_FALSE(IsDirty());
	GEditor->EndTransaction();
	EXPECT_TRUE(IsDirty());
}

TEST_F(FUndoSpawnTest, DeselectsAnActorThatIsUndoneAndSelectsNone)
{
	AUndoActor* Spawned = SpawnInStep();
	GEditor->SelectActor(&Actor, true, false);
	GEditor->SelectActor(Spawned, true, false);
	int32 Told = 0;
	const FDelegateHandle Handle = USelection::SelectionChangedEvent.AddLambda([&](UObject*) { ++Told; });
	Undo();
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 1);
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(&Actor));
	EXPECT_EQ(Told, 1);
	Redo();
	EXPECT_FALSE(GEditor->GetSelectedActors()->IsSelected(Spawned));
	Undo();
	EXPECT_EQ(Told, 1);
	USelection::SelectionChangedEvent.Remove(Handle);
}

TEST_F(FUndoSpawnTest, KeepsReferencesToAnActorThatCanComeBack)
{
	AUndoActor* First = nullptr;
	AUndoActor* Second = nullptr;
	Do(
		[&]
		{
			First = Spawn();
			Second = Spawn();
			First->Target = Second;
			Second->Actors = {First, Second};
			Actor.Target = First;
		},
		{&Actor});
	Actor.Actors = {Second};
	Undo();
	EXPECT_EQ(Actor.Target, nullptr);
	Collect();
	Redo();
	Collect();
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, First, Second}));
	EXPECT_EQ(First->Target, Second);
	EXPECT_EQ(Second->Actors, (TArray<AActor*>{First, Second}));
	EXPECT_EQ(Actor.Target, First);
	EXPECT_EQ(Actor.Actors, (TArray<AActor*>{Second}));
}

TEST_F(FUndoSpawnTest, KeepsTheNameOfAnActorThatCanComeBack)
{
	FActorSpawnParameters Named;
	Named.Name = FName("Wanted");
	Named.NameMode = FActorSpawnParameters::ESpawnActorNameMode::Required_ReturnNull;
	Do([&] { Editor.World()->SpawnActor<AUndoActor>(Named); }, {});
	Undo();
	Collect();
	EXPECT_EQ(Editor.World()->SpawnActor<AUndoActor>(Named), nullptr);
	GEditor->ResetTransaction(FText());
	Collect();
	EXPECT_NE(Editor.World()->SpawnActor<AUndoActor>(Named), nullptr);
}

TEST_F(FUndoSpawnTest, GivesUpAnActorThatCannotComeBack)
{
	const TWeakObjectPtr<AUndoActor> WithNewStep = SpawnInStep();
	Undo();
	EXPECT_TRUE(WithNewStep.IsValid());
	Do([this] { Actor.Number = 5; }, {&Actor});
	EXPECT_FALSE(WithNewStep.IsValid());
	const TWeakObjectPtr<AUndoActor> WithoutRedo = SpawnInStep();
	GEditor->UndoTransaction(false);
	EXPECT_FALSE(WithoutRedo.IsValid());
	const TWeakObjectPtr<AUndoActor> WithReset = SpawnInStep();
	Undo();
	GEditor->ResetTransaction(FText());
	EXPECT_FALSE(WithReset.IsValid());
	Collect();
	EXPECT_EQ(WithNewStep.Get(true), nullptr);
	EXPECT_EQ(WithoutRedo.Get(true), nullptr);
	EXPECT_EQ(WithReset.Get(true), nullptr);
}

TEST_F(FUndoSpawnTest, LeavesActorsInTheLevelWhenTheHistoryIsForgotten)
{
	AUndoActor* Stays = SpawnInStep();
	AUndoActor* BackAgain = SpawnInStep();
	Undo();
	Redo();
	GEditor->ResetTransaction(FText());
	Collect();
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, Stays, BackAgain}));
}

TEST_F(FUndoSpawnTest, PassesOverAnActorThatWasDestroyed)
{
	AUndoActor* Spawned = SpawnInStep();
	GEditor->SelectActor(&Actor, true, false);
	Editor.World()->DestroyActor(Spawned);
	Clean();
	EXPECT_TRUE(Undo());
	EXPECT_FALSE(IsDirty());
	Collect();
	EXPECT_TRUE(Redo());
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor}));
	EXPECT_FALSE(IsDirty());
}

TEST_F(FUndoSpawnTest, MakesNoStepOfAnActorThatWasDestroyedInIt)
{
	Do([&] { Editor.World()->DestroyActor(Spawn()); }, {});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
	EXPECT_FALSE(IsDirty());
}

TEST_F(FUndoSpawnTest, MakesNoStepOfAnActorThatIsNotTransactional)
{
	FActorSpawnParameters Parameters;
	Parameters.ObjectFlags = RF_NoFlags;
	Do([&] { Editor.World()->SpawnActor<AUndoActor>(Parameters); }, {});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FUndoSpawnTest, DoesNotTakeBackValuesOfAnActorThatComesAndGoes)
{
	AUndoActor* Spawned = nullptr;
	Do(
		[&]
		{
			Spawned = Spawn();
			Spawned->Modify();
			Spawned->Component->Modify();
			Spawned->Number = 5;
			Spawned->Component->Strength = 6.0f;
		},
		{});
	Undo();
	EXPECT_EQ(Spawned->Number, 5);
	Redo();
	EXPECT_EQ(Spawned->Number, 5);
	EXPECT_EQ(Spawned->Component->Strength, 6.0f);
	EXPECT_EQ(Spawned->TimesTold, 1);
	EXPECT_EQ(Spawned->Component->TimesTold, 0);
}

TEST_F(FUndoSpawnTest, RecordsNoListOfActorsAsAWhole)
{
	AUndoActor* Spawned = nullptr;
	Do([&] { Spawned = Spawn(); }, {Editor.World()->PersistentLevel});
	AUndoActor* Later = Spawn();
	Undo();
	EXPECT_EQ(GetPlaces(), (TArray<AActor*>{&Actor, nullptr, Later}));
	Redo();
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, Spawned, Later}));
	Do([] {}, {Editor.World()->PersistentLevel});
	Undo();
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor, Later}));
}

TEST_F(FUndoSpawnTest, TakesActorsOutOfAnyWorld)
{
	UWorld* Second = UWorld::CreateWorld(EWorldType::EditorPreview, true);
	AActor* Spawned = nullptr;
	Do([&] { Spawned = Second->SpawnActor<AUndoActor>(); }, {});
	EXPECT_TRUE(Second->GetOutermost()->IsDirty());
	EXPECT_FALSE(IsDirty());
	Undo();
	EXPECT_EQ(Second->PersistentLevel->Actors, (TArray<AActor*>{nullptr}));
	Second->DestroyWorld(true);
	EXPECT_TRUE(Redo());
	Collect();
	EXPECT_TRUE(Undo());
}

TEST_F(FUndoSpawnTest, UndoesALevelActorByActor)
{
	TArray<AActor*> All{&Actor};
	for (int32 Index = 0; Index < 20; ++Index)
	{
		All.Add(SpawnInStep());
	}
	for (int32 Left = 20; Left > 0; --Left)
	{
		EXPECT_EQ(GetActors().Num(), Left + 1);
		ASSERT_TRUE(Undo());
		Collect();
	}
	EXPECT_EQ(GetActors(), (TArray<AActor*>{&Actor}));
	while (Redo())
	{
		Collect();
	}
	EXPECT_EQ(GetActors(), All);
}
