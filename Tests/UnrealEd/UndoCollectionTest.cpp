// Copyright Corvane. MIT License.
#include "UndoFixture.h"

/** What the history keeps from the collector, and what it does without. */
class FUndoCollectionTest : public FUndoFixture
{};

TEST_F(FUndoCollectionTest, PassesOverObjectsThatWereDestroyed)
{
	AUndoActor* Destroyed = Spawn();
	Do([&] { Destroyed->Number = Actor.Number = 5; }, {Destroyed, Destroyed->Component, &Actor});
	Do([&] { Destroyed->Component->Strength = 1.0f; }, {Destroyed->Component});
	Editor.World()->DestroyActor(Destroyed);
	Clean();
	ASSERT_TRUE(Undo());
	EXPECT_FALSE(IsDirty());
	EXPECT_EQ(Destroyed->Component->TimesTold, 0);
	EXPECT_EQ(Destroyed->Component->Strength, 1.0f);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_EQ(Destroyed->Number, 5);
	EXPECT_EQ(Destroyed->TimesTold, 0);
	const TWeakObjectPtr<AUndoActor> Weak = Destroyed;
	Collect();
	EXPECT_EQ(Weak.Get(true), nullptr);
	EXPECT_TRUE(Redo() && Redo());
	EXPECT_EQ(Actor.Number, 5);
}

TEST_F(FUndoCollectionTest, MakesNoStepOfObjectsThatWereDestroyedInIt)
{
	AUndoActor* Destroyed = Spawn();
	Do(
		[&]
		{
			Destroyed->Number = 5;
			Editor.World()->DestroyActor(Destroyed);
		},
		{Destroyed});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
	EXPECT_FALSE(IsDirty());
	Destroyed = Spawn();
	Do(
		[&]
		{
			Destroyed->Number = 5;
			Editor.World()->DestroyActor(Destroyed);
			Collect();
		},
		{Destroyed});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FUndoCollectionTest, ReferencesNothingThatWasDestroyed)
{
	AUndoActor* Destroyed = Spawn();
	Actor.Target = Destroyed;
	Actor.Actors = {&Actor, Destroyed};
	Do(
		[this]
		{
			Actor.Target = &Actor;
			Actor.Actors.Empty();
		},
		{&Actor});
	Editor.World()->DestroyActor(Destroyed);
	Collect();
	Undo();
	EXPECT_EQ(Actor.Target, nullptr);
	EXPECT_EQ(Actor.Actors, (TArray<AActor*>{&Actor, nullptr}));
}

TEST_F(FUndoCollectionTest, KeepsWhatItsValuesReferTo)
{
	AUndoActor* Held = NewObject<AUndoActor>(GetTransientPackage(), FName("Held"));
	const TWeakObjectPtr<AUndoActor> Weak = Held;
	Do([&] { Actor.Actors = {Held}; }, {&Actor});
	Undo();
	Collect();
	ASSERT_TRUE(Weak.IsValid());
	Redo();
	EXPECT_EQ(Actor.Actors, (TArray<AActor*>{Held}));
	Do([this] { Actor.Actors.Empty(); }, {&Actor});
	Collect();
	EXPECT_TRUE(Weak.IsValid());
	GEditor->ResetTransaction(FText());
	Collect();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FUndoCollectionTest, KeepsItsCopiesFromTheCollectorWhileItRecords)
{
	AUndoActor* Held = NewObject<AUndoActor>(GetTransientPackage(), FName("Held"), RF_Transactional);
	Actor.Target = Held;
	GEditor->BeginTransaction(FText());
	Actor.Modify();
	Actor.Target = nullptr;
	const TWeakObjectPtr<AUndoActor> Weak = Held;
	Collect();
	ASSERT_TRUE(Weak.IsValid());
	GEditor->EndTransaction();
	Undo();
	EXPECT_EQ(Actor.Target, Held);
}

TEST_F(FUndoCollectionTest, KeepsTheObjectsThatItHasChanged)
{
	const TWeakObjectPtr<AUndoActor> Weak =
		NewObject<AUndoActor>(GetTransientPackage(), FName("Held"), RF_Transactional);
	Do([&] { Weak->Number = 5; }, {Weak.Get()});
	Collect();
	ASSERT_TRUE(Weak.IsValid());
	Undo();
	EXPECT_EQ(Weak->Number, 3);
	GEditor->ResetTransaction(FText());
	Collect();
	EXPECT_FALSE(Weak.IsValid());
}
