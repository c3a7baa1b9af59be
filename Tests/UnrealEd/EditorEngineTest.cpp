// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "LevelEditorViewport.h"
#include "StandaloneEditorEvents.h"
#include "TestEditor.h"
#include "Tests/AutomationEditorCommon.h"

namespace
{
	/** Counts the selection's changes for the length of a test. */
	class FSelectionCounter
	{
	public:
		FSelectionCounter()
		{
			Handle = USelection::SelectionChangedEvent.AddLambda(
				[this](UObject* Selection)
				{
					++Count;
					EXPECT_EQ(Selection, GEditor->GetSelectedActors());
				});
		}
		~FSelectionCounter() { USelection::SelectionChangedEvent.Remove(Handle); }
		FSelectionCounter(const FSelectionCounter&) = delete;
		FSelectionCounter& operator=(const FSelectionCounter&) = delete;

		int32 Count = 0;

	private:
		FDelegateHandle Handle;
	};
}

TEST(UEditorEngine, SelectsActorsOneByOne)
{
	const FTestEditor Editor;
	AActor* First = Editor.Spawn();
	AActor* Second = Editor.Spawn();
	GEditor->SelectActor(First, true, true);
	GEditor->SelectActor(Second, true, true);
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 2);
	GEditor->SelectActor(First, false, true);
	EXPECT_FALSE(GEditor->GetSelectedActors()->IsSelected(First));
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(Second));
}

TEST(UEditorEngine, SelectsNoNullAndNoDestroyedActor)
{
	const FTestEditor Editor;
	AActor* Actor = Editor.Spawn();
	Editor.World()->DestroyActor(Actor);
	GEditor->SelectActor(Actor, true, true);
	GEditor->SelectActor(nullptr, true, true);
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
}

TEST(UEditorEngine, TellsOfASelectionOnlyWhenAsked)
{
	const FTestEditor Editor;
	const FSelectionCounter Counter;
	AActor* Actor = Editor.Spawn();
	GEditor->SelectActor(Actor, true, false);
	EXPECT_EQ(Counter.Count, 0);
	GEditor->SelectActor(Actor, false, true);
	EXPECT_EQ(Counter.Count, 1);
}

TEST(UEditorEngine, TellsOfNoSelectionThatChangesNothingUnlessForced)
{
	const FTestEditor Editor;
	AActor* Actor = Editor.Spawn();
	GEditor->SelectActor(Actor, true, true);
	const FSelectionCounter Counter;
	GEditor->SelectActor(Actor, true, true);
	EXPECT_EQ(Counter.Count, 0);
	GEditor->SelectActor(Actor, true, true, false, true);
	EXPECT_EQ(Counter.Count, 1);
}

TEST(UEditorEngine, DeselectsAllActors)
{
	const FTestEditor Editor;
	GEditor->SelectActor(Editor.Spawn(), true, false);
	const FSelectionCounter Counter;
	GEditor->SelectNone(true, true, true);
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
	EXPECT_EQ(Counter.Count, 1);
	GEditor->SelectNone(true, true, true);
	EXPECT_EQ(Counter.Count, 1);
}

TEST(UEditorEngine, DeselectsSilentlyWhenAsked)
{
	const FTestEditor Editor;
	GEditor->SelectActor(Editor.Spawn(), true, false);
	const FSelectionCounter Counter;
	GEditor->SelectNone(false, true);
	EXPECT_EQ(Counter.Count, 0);
}

TEST(UEditorEngine, LeavesTheSelectedObjectsWhenItDeselectsActors)
{
	const FTestEditor Editor;
	GEditor->GetSelectedObjects()->Select(Editor.World());
	GEditor->SelectNone(true, true);
	EXPECT_EQ(GEditor->GetSelectedObjects()->Num(), 1);
}

TEST(UEditorEngine, ListsClientsInTheOrderOfTheirMaking)
{
	const FTestEditor Editor;
	const FLevelEditorViewportClient First(nullptr);
	{
		const FEditorViewportClient Second(nullptr);
		const FLevelEditorViewportClient Third(nullptr);
		ASSERT_EQ(GEditor->GetAllViewportClients().Num(), 3);
		EXPECT_EQ(GEditor->GetAllViewportClients()[0], &First);
		EXPECT_EQ(GEditor->GetAllViewportClients()[1], &Second);
		EXPECT_EQ(GEditor->GetAllViewportClients()[2], &Third);
	}
	ASSERT_EQ(GEditor->GetAllViewportClients().Num(), 1);
	EXPECT_EQ(GEditor->GetAllViewportClients()[0], &First);
}

TEST(UEditorEngineDeathTest, EndsTheProgramOverTheFirstOfNoClients)
{
	const FTestEditor Editor;
	EXPECT_EXIT(GEditor->GetAllViewportClients()[0]->GetWorld(), ::testing::ExitedWithCode(3),
		"Array index out of bounds: 0 from an array of size 0");
}

TEST(UEditorEngine, HasNoActiveViewportFirst)
{
	const FTestEditor Editor;
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST(UEditorEngine, ForgetsTheActiveViewportWithItsClient)
{
	const FTestEditor Editor;
	FTestViewport Viewport;
	FTestViewport OtherViewport;
	{
		FEditorViewportClient Client(nullptr);
		Client.Viewport = &Viewport;
		{
			FEditorViewportClient Other(nullptr);
			Other.Viewport = &OtherViewport;
			GEditor->SetActiveViewport(&Viewport);
		}
		EXPECT_EQ(GEditor->GetActiveViewport(), &Viewport);
	}
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST(UEditorEngine, RedrawsEveryViewport)
{
	const FTestEditor Editor;
	FTestViewport Viewports[2];
	FEditorViewportClient First(nullptr);
	const FEditorViewportClient WithoutViewport(nullptr);
	FEditorViewportClient Second(nullptr);
	First.Viewport = &Viewports[0];
	Second.Viewport = &Viewports[1];
	GEditor->RedrawAllViewports(true);
	for (const FTestViewport& Viewport : Viewports)
	{
		EXPECT_EQ(Viewport.Displays, 1);
		EXPECT_EQ(Viewport.HitProxies, 1);
	}
}

TEST(UEditorEngine, LeavesHitProxiesAloneWhenAsked)
{
	const FTestEditor Editor;
	FTestViewport Viewport;
	FEditorViewportClient Client(nullptr);
	Client.Viewport = &Viewport;
	GEditor->RedrawAllViewports(false);
	EXPECT_EQ(Viewport.Displays, 1);
	EXPECT_EQ(Viewport.HitProxies, 0);
}

TEST(UEditorEngine, TellsOfRedraws)
{
	const FTestEditor Editor;
	TArray<int32> Flags;
	const FDelegateHandle Handle =
		FStandaloneEditorEvents::Redraw.AddLambda([&Flags](bool bFlag) { Flags.Add(bFlag); });
	GEditor->RedrawAllViewports(false);
	GEditor->RedrawAllViewports();
	FStandaloneEditorEvents::Redraw.Remove(Handle);
	EXPECT_EQ(Flags, (TArray<int32>{0, 1}));
}

TEST(UEditorEngine, TellsWhatTheContentBrowserShouldShow)
{
	const FTestEditor Editor;
	TArray<UObject*> Shown;
	bool bShownInFront = true;
	const FDelegateHandle Handle = FStandaloneEditorEvents::ContentSync.AddLambda(
		[&Shown, &bShownInFront](const TArray<UObject*>& Objects, bool bFocus)
		{
			Shown = Objects;
			bShownInFront = bFocus;
		});
	TArray<UObject*> Objects{Editor.Spawn()};
	GEditor->SyncBrowserToObjects(Objects, false);
	FStandaloneEditorEvents::ContentSync.Remove(Handle);
	EXPECT_EQ(Shown, Objects);
	EXPECT_FALSE(bShownInFront);
}

TEST(UEditorEngine, OpensAnEmptyLevelInPlaceOfTheOldOne)
{
	const FTestEditor Editor;
	const FEditorViewportClient Client(nullptr);
	UWorld* OldWorld = Editor.World();
	const TWeakObjectPtr<AActor> OldActor = Editor.Spawn();
	UWorld* NewWorld = FAutomationEditorCommonUtils::CreateNewMap();
	EXPECT_NE(NewWorld, OldWorld);
	EXPECT_EQ(Editor.World(), NewWorld);
	EXPECT_EQ(Client.GetWorld(), NewWorld);
	EXPECT_EQ(NewWorld->PersistentLevel->Actors.Num(), 0);
	EXPECT_FALSE(OldActor.IsValid());
	EXPECT_TRUE(OldWorld->IsPendingKill());
}

TEST(UEditorEngine, DeselectsAllWhenItOpensALevel)
{
	const FTestEditor Editor;
	GEditor->SelectActor(Editor.Spawn(), true, false);
	GEditor->GetSelectedObjects()->Select(GEditor);
	const FSelectionCounter Counter;
	GEditor->NewMap();
	EXPECT_EQ(Counter.Count, 1);
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
	EXPECT_EQ(GEditor->GetSelectedObjects()->Num(), 0);
}

TEST(UEditorEngine, KeepsItsSelectionsFromTheCollector)
{
	const FTestEditor Editor;
	AActor* Actor = Editor.Spawn();
	GEditor->SelectActor(Actor, true, false);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(Actor));
}
