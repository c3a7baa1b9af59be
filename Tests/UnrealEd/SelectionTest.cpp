// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestEditor.h"

TEST(USelection, KeepsTheOrderOfSelection)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	AActor* First = Editor.Spawn();
	AActor* Second = Editor.Spawn();
	Selection->Select(Second);
	Selection->Select(First);
	ASSERT_EQ(Selection->Num(), 2);
	EXPECT_EQ(Selection->GetSelectedObject(0), Second);
	EXPECT_EQ(Selection->GetSelectedObject(1), First);
	EXPECT_EQ(Selection->GetSelectedObject(2), nullptr);
	EXPECT_EQ(Selection->GetSelectedObject(-1), nullptr);
}

TEST(USelection, HoldsAnObjectOnce)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	AActor* Actor = Editor.Spawn();
	Selection->Select(Actor);
	Selection->Select(Actor);
	EXPECT_EQ(Selection->Num(), 1);
}

TEST(USelection, TakesNoNull)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	Selection->Select(nullptr);
	EXPECT_EQ(Selection->Num(), 0);
	EXPECT_FALSE(Selection->IsSelected(nullptr));
}

TEST(USelection, DeselectsOneObject)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	AActor* First = Editor.Spawn();
	AActor* Second = Editor.Spawn();
	Selection->Select(First);
	Selection->Select(Second);
	Selection->Deselect(First);
	ASSERT_EQ(Selection->Num(), 1);
	EXPECT_EQ(Selection->GetSelectedObject(0), Second);
}

TEST(USelection, DeselectsTheObjectsOfAClass)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	Selection->Select(Editor.Spawn());
	Selection->Select(Editor.World());
	Selection->DeselectAll(AActor::StaticClass());
	ASSERT_EQ(Selection->Num(), 1);
	EXPECT_EQ(Selection->GetSelectedObject(0), Editor.World());
	Selection->DeselectAll();
	EXPECT_EQ(Selection->Num(), 0);
}

TEST(USelection, ForgetsDestroyedObjects)
{
	const FTestEditor Editor;
	USelection* Selection = GEditor->GetSelectedObjects();
	AActor* Destroyed = Editor.Spawn();
	AActor* Kept = Editor.Spawn();
	Selection->Select(Destroyed);
	Selection->Select(Kept);
	Editor.World()->DestroyActor(Destroyed);
	ASSERT_EQ(Selection->Num(), 1);
	EXPECT_EQ(Selection->GetSelectedObject(0), Kept);
}

TEST(USelection, ListsTheObjectsOfATypeInTheOrderOfSelection)
{
	USelection* Selection = NewObject<USelection>();
	UTransactor* First = NewObject<UTransactor>();
	USelection* Other = NewObject<USelection>();
	UTransactor* Second = NewObject<UTransactor>();
	for (UObject* Object : {static_cast<UObject*>(First), static_cast<UObject*>(Other), static_cast<UObject*>(Second)})
	{
		Selection->Select(Object);
	}
	TArray<UTransactor*> Found;
	Found.Add(nullptr);
	EXPECT_EQ(Selection->GetSelectedObjects(Found), 2);
	EXPECT_EQ(Found, (TArray<UTransactor*>{First, Second}));
	First->MarkPendingKill();
	EXPECT_EQ(Selection->GetSelectedObjects(Found), 1);
}

TEST(USelection, SelectsAnObjectAgainThatWasDeselected)
{
	USelection* Selection = NewObject<USelection>();
	UTransactor* Object = NewObject<UTransactor>();
	for (int Round = 0; Round < 2; ++Round)
	{
		Selection->Select(Object);
		EXPECT_TRUE(Selection->IsSelected(Object));
		Round == 0 ? Selection->Deselect(Object) : Selection->DeselectAll();
		EXPECT_FALSE(Selection->IsSelected(Object));
	}
}
