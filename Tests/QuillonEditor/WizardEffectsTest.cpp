// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "RecordingEditor.h"
#include "UObject/Package.h"
#include "StandaloneEditorEvents.h"

/** Counts what the editor is asked to do. */
class FWizardEffects : public FWizardFixture
{
protected:
	FWizardEffects()
	{
		LevelDirtied = ULevel::LevelDirtiedEvent.AddLambda([this]() { Events.push_back("dirtied"); });
		Redrawn = FStandaloneEditorEvents::Redraw.AddLambda(
			[this](bool bHitProxies) { Events.push_back(bHitProxies ? "redraw+hit" : "redraw"); });
		Synced = FStandaloneEditorEvents::ContentSync.AddLambda(
			[this](const TArray<UObject*>& Objects, bool bFocus)
			{
				SyncedObjects = Objects;
				bSelectedBeforeSync =
					GEditor->GetSelectedActors()->Num() == 1 && GEditor->GetSelectedActors()->IsSelected(Objects[0]);
				Events.push_back(bFocus ? "sync+focus" : "sync");
			});
		URecordingEditor::Get().SelectionCalls.Reset();
	}
	~FWizardEffects() override
	{
		ULevel::LevelDirtiedEvent.Remove(LevelDirtied);
		FStandaloneEditorEvents::Redraw.Remove(Redrawn);
		FStandaloneEditorEvents::ContentSync.Remove(Synced);
	}
	std::vector<std::string> Events;
	TArray<UObject*> SyncedObjects;
	bool bSelectedBeforeSync = false;
	FDelegateHandle LevelDirtied;
	FDelegateHandle Redrawn;
	FDelegateHandle Synced;
};

TEST_F(FWizardEffects, ComeInOrderWhereTheManagerIsSpawned)
{
	Create("Main");
	// The camera's sync and redraw, the manager's own broadcast and redraw, then the entry's broadcast.
	EXPECT_EQ(Events, (std::vector<std::string>{"sync", "redraw+hit", "dirtied", "redraw+hit", "dirtied"}));
}

TEST_F(FWizardEffects, LeaveOutTheManagersOwnWhereThereIsOne)
{
	PlaceManager(World(0), TEXT("A"), TEXT("A_Standalone"));
	Create("Main");
	EXPECT_EQ(Events, (std::vector<std::string>{"sync", "redraw+hit", "dirtied"}));
}

TEST_F(FWizardEffects, SyncTheBrowserToTheCameraAloneWithoutBringingItForward)
{
	Create("Main");
	ASSERT_EQ(SyncedObjects.Num(), 1);
	EXPECT_TRUE(bSelectedBeforeSync);
	EXPECT_TRUE(SyncedObjects[0] == GetActors(World(0), TEXT("ZAVCineCamCapture"))[0]);
}

TEST_F(FWizardEffects, ChangeTheSelectionWithTheseArguments)
{
	Create("Main");
	const TArray<URecordingEditor::FSelectionCall>& Calls = URecordingEditor::Get().SelectionCalls;
	ASSERT_EQ(Calls.Num(), 2);
	EXPECT_EQ(Calls[0].Actor, nullptr);
	EXPECT_TRUE(Calls[0].Flags == (TArray<int32>{true, true, true}));
	EXPECT_EQ(Calls[1].Actor, GetActors(World(0), TEXT("ZAVCineCamCapture"))[0]);
	// Selected; without notification, not where it is hidden, without a forced refresh.
	EXPECT_TRUE(Calls[1].Flags == (TArray<int32>{true, false, false, false}));
}

TEST_F(FWizardEffects, DeselectObjectsThatAreNoActors)
{
	GEditor->GetSelectedObjects()->Select(World(0));
	Create("Main");
	EXPECT_EQ(GEditor->GetSelectedObjects()->Num(), 0);
}

TEST_F(FWizardEffects, AreNoneWhenTheNameIsEmpty)
{
	OpenWizard();
	Pages->PressButton();
	EXPECT_TRUE(Events.empty());
	EXPECT_EQ(URecordingEditor::Get().SelectionCalls.Num(), 0);
	EXPECT_TRUE(GetAssetPackages().empty());
}

TEST_F(FWizardEffects, AreNoneWhileTyping)
{
	PlaceManager(World(0), TEXT("Main"), TEXT("Main_Standalone"));
	OpenWizard();
	Pages->EnterName("Main");
	EXPECT_TRUE(Events.empty());
	EXPECT_FALSE(World(0)->GetOutermost()->IsDirty());
}
