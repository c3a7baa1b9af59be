// Copyright Corvane. MIT License.
#include "UndoFixture.h"

#include <cmath>
#include <limits>

#include "UObject/UnrealType.h"

class FUndoHistoryTest : public FUndoFixture
{
protected:
	/** Whether the change is undone and redone, as Read tells. */
	void ExpectUndone(const std::function<void(AUndoActor&)>& Change, const std::function<FString(AUndoActor&)>& Read)
	{
		const FString Before = Read(Actor);
		Do([&] { Change(Actor); }, {&Actor});
		const FString After = Read(Actor);
		ASSERT_FALSE(After.Equals(Before));
		Collect();
		ASSERT_TRUE(Undo());
		EXPECT_TRUE(Read(Actor).Equals(Before));
		Collect();
		ASSERT_TRUE(Redo());
		EXPECT_TRUE(Read(Actor).Equals(After));
	}
};

TEST_F(FUndoHistoryTest, TakesBackValuesOfEveryKind)
{
	ExpectUndone([](AUndoActor& A) { A.bFlag = false; }, [](AUndoActor& A) { return FString(A.bFlag ? "yes" : "no"); });
	ExpectUndone([](AUndoActor& A) { A.Number = -1; }, [](AUndoActor& A) { return FString::FromInt(A.Number); });
	ExpectUndone([](AUndoActor& A) { A.Fraction = 4.0f; },
		[](AUndoActor& A) { return FString::FromInt(static_cast<int32>(A.Fraction)); });
	ExpectUndone([](AUndoActor& A) { A.Text = TEXT("new"); }, [](AUndoActor& A) { return A.Text; });
	ExpectUndone([](AUndoActor& A) { A.Label = TEXT("Red"); }, [](AUndoActor& A) { return A.Label.ToString(); });
	ExpectUndone([](AUndoActor& A) { A.Shown = FText::FromString(TEXT("Hello")); },
		[](AUndoActor& A) { return A.Shown.ToString(); });
	ExpectUndone([](AUndoActor& A) { A.Passing = 5; }, [](AUndoActor& A) { return FString::FromInt(A.Passing); });
	ExpectUndone(
		[](AUndoActor& A) { A.Target = &A; }, [](AUndoActor& A) { return A.Target ? A.Target->GetName() : FString(); });
	ExpectUndone([](AUndoActor& A) { A.Group.Entry.Offset.Y = 8.0f; },
		[](AUndoActor& A) { return FString::FromInt(static_cast<int32>(A.Group.Entry.Offset.Y)); });
	ExpectUndone(
		[](AUndoActor& A) {
			A.Group.Entries = {FUndoEntry(), FUndoEntry()};
		},
		[](AUndoActor& A) { return FString::FromInt(A.Group.Entries.Num()); });
	ExpectUndone(
		[](AUndoActor& A) { A.Actors.Add(&A); }, [](AUndoActor& A) { return FString::FromInt(A.Actors.Num()); });
}

TEST_F(FUndoHistoryTest, TakesBackOnlyTheLetterCase)
{
	Actor.Text = TEXT("main");
	Do([this] { Actor.Text = TEXT("Main"); }, {&Actor});
	ASSERT_TRUE(Undo());
	EXPECT_TRUE(Actor.Text.Equals(TEXT("main")));
}

TEST_F(FUndoHistoryTest, TakesBackTheSignOfAZero)
{
	Actor.Fraction = 0.0f;
	Do([this] { Actor.Fraction = -0.0f; }, {&Actor});
	ASSERT_TRUE(Undo());
	EXPECT_FALSE(std::signbit(Actor.Fraction));
}

TEST_F(FUndoHistoryTest, SeesNoChangeInWhatIsNoNumber)
{
	Actor.Fraction = std::numeric_limits<float>::quiet_NaN();
	Do([] {}, {&Actor});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FUndoHistoryTest, HasNothingToUndoOrRedoAtFirst)
{
	EXPECT_FALSE(Undo());
	EXPECT_FALSE(Redo());
	EXPECT_TRUE(GEditor->Trans->GetUndoContext().Title.IsEmpty());
	EXPECT_TRUE(GEditor->Trans->GetRedoContext().Title.IsEmpty());
}

TEST_F(FUndoHistoryTest, GoesBackAndForthStepByStep)
{
	for (int32 Number : {10, 20, 30})
	{
		Do([this, Number] { Actor.Number = Number; }, {&Actor}, *FString::FromInt(Number));
	}
	const UTransactor& Trans = *GEditor->Trans;
	EXPECT_TRUE(Trans.GetUndoContext().Title.ToString().Equals(TEXT("30")));
	EXPECT_TRUE(Undo() && Undo());
	EXPECT_EQ(Actor.Number, 10);
	EXPECT_TRUE(Trans.GetUndoContext().Title.ToString().Equals(TEXT("10")));
	EXPECT_TRUE(Trans.GetRedoContext().Title.ToString().Equals(TEXT("20")));
	EXPECT_TRUE(Redo());
	EXPECT_EQ(Actor.Number, 20);
	EXPECT_TRUE(Undo() && Undo());
	EXPECT_FALSE(Undo());
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_TRUE(Redo() && Redo() && Redo());
	EXPECT_FALSE(Redo());
	EXPECT_EQ(Actor.Number, 30);
}

TEST_F(FUndoHistoryTest, ForgetsWhatCouldBeRedoneWithANewStep)
{
	Do([this] { Actor.Number = 10; }, {&Actor});
	Do([this] { Actor.Number = 20; }, {&Actor});
	Undo();
	Do([this] { Actor.Text = TEXT("new"); }, {&Actor}, TEXT("New"));
	EXPECT_FALSE(Redo());
	EXPECT_TRUE(Undo() && Undo());
	EXPECT_FALSE(Undo());
	EXPECT_EQ(Actor.Number, 3);
}

TEST_F(FUndoHistoryTest, MakesNoStepOfWhatChangesNothing)
{
	Do([this] { Actor.Number = 10; }, {&Actor});
	Undo();
	Clean();
	Do(
		[this]
		{
			Actor.Number = 99;
			Actor.Number = 3;
			Actor.Group.Entry.Hidden = 1;
		},
		{&Actor, Actor.Component});
	EXPECT_FALSE(IsDirty());
	EXPECT_FALSE(GEditor->Trans->CanUndo());
	EXPECT_TRUE(Redo());
	EXPECT_EQ(Actor.Number, 10);
}

TEST_F(FUndoHistoryTest, FlagsThePackageOnlyOnceAStepHasChangedSomething)
{
	GEditor->BeginTransaction(FText());
	Actor.Modify();
	Actor.Number = 4;
	EXPECT_FALSE(IsDirty());
	GEditor->EndTransaction();
	EXPECT_TRUE(IsDirty());
	Clean();
	Undo();
	EXPECT_TRUE(IsDirty());
	Clean();
	Redo();
	EXPECT_TRUE(IsDirty());
}

TEST_F(FUndoHistoryTest, FlagsThePackageOfEachChangedObjectAndNoOther)
{
	UPackage* Changed = CreatePackage(TEXT("/Game/Undo/Changed"));
	UPackage* Same = CreatePackage(TEXT("/Game/Undo/Same"));
	AUndoActor* First = NewObject<AUndoActor>(Changed, FName("First"), RF_Transactional);
	AUndoActor* Second = NewObject<AUndoActor>(Same, FName("Second"), RF_Transactional);
	Do([&] { First->Component->Strength = 1.0f; }, {First->Component, Second});
	EXPECT_TRUE(Changed->IsDirty());
	EXPECT_FALSE(Same->IsDirty() || IsDirty());
	Changed->SetDirtyFlag(false);
	Undo();
	EXPECT_TRUE(Changed->IsDirty());
	EXPECT_FALSE(Same->IsDirty() || IsDirty());
}

TEST_F(FUndoHistoryTest, MakesOneStepOfNestedOnes)
{
	EXPECT_EQ(GEditor->BeginTransaction(FText::FromString(TEXT("Outer"))), 0);
	EXPECT_EQ(GEditor->BeginTransaction(FText::FromString(TEXT("Inner"))), 1);
	Actor.Modify();
	Actor.Number = 5;
	EXPECT_EQ(GEditor->EndTransaction(), 2);
	EXPECT_NE(GUndo, nullptr);
	Actor.Component->Modify();
	Actor.Component->Strength = 9.0f;
	EXPECT_EQ(GEditor->EndTransaction(), 1);
	EXPECT_EQ(GUndo, nullptr);
	EXPECT_TRUE(GEditor->Trans->GetUndoContext().Title.ToString().Equals(TEXT("Outer")));
	ASSERT_TRUE(Undo());
	EXPECT_FALSE(Undo());
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_EQ(Actor.Component->Strength, 0.5f);
}

TEST_F(FUndoHistoryTest, IgnoresAnEndWithoutBegin)
{
	EXPECT_EQ(GEditor->EndTransaction(), 0);
	Do([this] { Actor.Number = 5; }, {&Actor});
	EXPECT_EQ(GEditor->EndTransaction(), 0);
	EXPECT_TRUE(Undo());
}

TEST_F(FUndoHistoryTest, KeepsTheValuesOfTheFirstCallOfModify)
{
	Do(
		[this]
		{
			Actor.Number = 5;
			Actor.Modify();
			Actor.Number = 6;
		},
		{&Actor});
	Undo();
	EXPECT_EQ(Actor.Number, 3);
	Redo();
	EXPECT_EQ(Actor.Number, 6);
}

TEST_F(FUndoHistoryTest, NeitherUndoesNorRedoesWhileAStepIsRecorded)
{
	Do([this] { Actor.Number = 5; }, {&Actor});
	Do([this] { Actor.Number = 6; }, {&Actor});
	Undo();
	GEditor->BeginTransaction(FText());
	EXPECT_FALSE(Undo());
	EXPECT_FALSE(Redo());
	EXPECT_TRUE(GEditor->Trans->GetUndoContext().Title.IsEmpty());
	EXPECT_EQ(Actor.Number, 5);
	GEditor->EndTransaction();
	EXPECT_TRUE(Redo());
}

TEST_F(FUndoHistoryTest, LeavesAloneWhatChangedOutsideOfSteps)
{
	Actor.Entries = {FUndoEntry(), FUndoEntry()};
	Do(
		[this]
		{
			Actor.Entries[1].Count = 20;
			Actor.Group.Entry.Label = TEXT("step");
		},
		{&Actor});
	Actor.Number = 50;
	Actor.Entries[0].Count = 30;
	Actor.Entries[1].Label = TEXT("later");
	Actor.Entries[1].Hidden = 40;
	Actor.Entries.Add(FUndoEntry());
	Actor.Group.Entry.Count = 60;
	ASSERT_TRUE(Undo());
	ASSERT_EQ(Actor.Entries.Num(), 3);
	EXPECT_EQ(Actor.Entries[1].Count, 7);
	EXPECT_TRUE(Actor.Group.Entry.Label.IsEmpty());
	EXPECT_EQ(Actor.Number, 50);
	EXPECT_EQ(Actor.Entries[0].Count, 30);
	EXPECT_TRUE(Actor.Entries[1].Label.Equals(TEXT("later")));
	EXPECT_EQ(Actor.Entries[1].Hidden, 40);
	EXPECT_EQ(Actor.Group.Entry.Count, 60);
	ASSERT_TRUE(Redo());
	EXPECT_EQ(Actor.Entries.Num(), 3);
	EXPECT_EQ(Actor.Entries[1].Count, 20);
}

TEST_F(FUndoHistoryTest, PassesOverElementsThatAreGone)
{
	Actor.Group.Entries = {FUndoEntry(), FUndoEntry()};
	Do(
		[this]
		{
			Actor.Group.Entries[0].Count = 1;
			Actor.Group.Entries[1].Count = 2;
		},
		{&Actor});
	Actor.Group.Entries.RemoveAt(1);
	ASSERT_TRUE(Undo());
	ASSERT_EQ(Actor.Group.Entries.Num(), 1);
	EXPECT_EQ(Actor.Group.Entries[0].Count, 7);
	Actor.Group.Entries.Empty();
	EXPECT_TRUE(Redo());
	EXPECT_EQ(Actor.Group.Entries.Num(), 0);
}

TEST_F(FUndoHistoryTest, TakesBackAnArrayAsAWholeWhenItsLengthChanged)
{
	Actor.Numbers = {1, 2};
	Do([this] { Actor.Numbers = {5, 1, 2}; }, {&Actor});
	Undo();
	EXPECT_EQ(Actor.Numbers, (TArray<int32>{1, 2}));
	Redo();
	EXPECT_EQ(Actor.Numbers, (TArray<int32>{5, 1, 2}));
	Do([this] { Actor.Numbers.Empty(); }, {&Actor});
	Undo();
	EXPECT_EQ(Actor.Numbers, (TArray<int32>{5, 1, 2}));
}

TEST_F(FUndoHistoryTest, TellsEachObjectOnceWhenAllAreAsTheyShouldBe)
{
	AUndoActor* Other = Spawn();
	Do(
		[&]
		{
			Actor.Number = 5;
			Actor.Text = TEXT("new");
			Other->Number = 6;
		},
		{&Actor, Actor.Component, Other});
	int32 Told = 0;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&](UObject*, FPropertyChangedEvent& Event)
		{
			++Told;
			EXPECT_EQ(Event.Property, nullptr);
			EXPECT_EQ(Actor.Number, 3);
			EXPECT_EQ(Other->Number, 3);
		});
	Undo();
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_EQ(Told, 2);
	EXPECT_EQ(Actor.TimesTold, 1);
	EXPECT_EQ(Other->TimesTold, 1);
	EXPECT_EQ(Actor.Component->TimesTold, 0);
	Redo();
	EXPECT_EQ(Actor.TimesTold, 2);
}

TEST_F(FUndoHistoryTest, TakesAStepThatIsMadeWhileItUndoes)
{
	Do([this] { Actor.Number = 5; }, {&Actor});
	const FDelegateHandle Handle =
		FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([this](UObject*, FPropertyChangedEvent&)
			{ Do([this] { Actor.Text = TEXT("answer"); }, {&Actor}, TEXT("Answer")); });
	ASSERT_TRUE(Undo());
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_FALSE(Redo());
	EXPECT_TRUE(GEditor->Trans->GetUndoContext().Title.ToString().Equals(TEXT("Answer")));
	EXPECT_TRUE(Undo());
	EXPECT_TRUE(Actor.Text.IsEmpty());
	EXPECT_FALSE(Undo());
}

TEST_F(FUndoHistoryTest, ForgetsAStepThatMayNotBeRedone)
{
	Do([this] { Actor.Number = 5; }, {&Actor});
	Do([this] { Actor.Number = 6; }, {&Actor});
	Do([this] { Actor.Number = 7; }, {&Actor});
	Undo();
	EXPECT_TRUE(GEditor->UndoTransaction(false));
	EXPECT_FALSE(Redo());
	EXPECT_EQ(Actor.Number, 5);
	EXPECT_TRUE(Undo());
	EXPECT_FALSE(Undo());
}

TEST_F(FUndoHistoryTest, ForgetsTheOldestOfTooManySteps)
{
	const int32 NumSteps = 10000;
	for (int32 Index = 1; Index <= NumSteps + 2; ++Index)
	{
		Do([&] { Actor.Number = 100 + Index; }, {&Actor});
	}
	int32 NumUndone = 0;
	while (Undo())
	{
		++NumUndone;
	}
	EXPECT_EQ(NumUndone, NumSteps);
	EXPECT_EQ(Actor.Number, 102);
	Collect();
	while (Redo())
	{
		--NumUndone;
	}
	EXPECT_EQ(NumUndone, 0);
	EXPECT_EQ(Actor.Number, 100 + NumSteps + 2);
}

TEST_F(FUndoHistoryTest, IsForgottenWithTheLevel)
{
	Do([this] { Actor.Number = 5; }, {&Actor});
	Do([this] { Actor.Number = 6; }, {&Actor});
	Undo();
	GEditor->NewMap();
	EXPECT_FALSE(Undo());
	EXPECT_FALSE(Redo());
}

TEST_F(FUndoHistoryTest, StopsRecordingWhenItIsReset)
{
	GEditor->BeginTransaction(FText());
	GEditor->BeginTransaction(FText());
	Actor.Modify();
	Actor.Number = 5;
	GEditor->ResetTransaction(FText());
	EXPECT_EQ(GUndo, nullptr);
	EXPECT_EQ(GEditor->EndTransaction(), 0);
	EXPECT_FALSE(Undo());
	Do([this] { Actor.Number = 6; }, {&Actor});
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Actor.Number, 5);
}

TEST(UTransactor, StopsRecordingWhenTheEditorGoes)
{
	{
		const FTestEditor Editor;
		GEditor->BeginTransaction(FText());
		EXPECT_NE(GUndo, nullptr);
	}
	EXPECT_EQ(GUndo, nullptr);
}
