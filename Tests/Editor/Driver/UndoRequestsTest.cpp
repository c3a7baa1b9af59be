// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "TemporaryFolder.h"

#include "Editor.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "ZAVSpoutReceiverManager.h"

using nlohmann::json;

class FUndoRequestsTest : public FEditorStateFixture
{
protected:
	FAnswer GetLevel() { return Ask({{"do", "level"}}); }

	/** Names the first receiver of the first manager in a step. */
	void Rename(const TCHAR* Name)
	{
		TArray<AActor*> Managers;
		UGameplayStatics::GetAllActorsOfClass(
			Session.GetEditor().GetWorld(0), AZAVSpoutReceiverManager::StaticClass(), Managers);
		GEditor->BeginTransaction(FText::FromString(TEXT("Edit Name")));
		Managers[0]->Modify();
		static_cast<AZAVSpoutReceiverManager*>(Managers[0])->SpoutReceivers[0].Name = Name;
		GEditor->EndTransaction();
	}

	FAnswer GetReceiver() { return GetLevel()["actors"].at(0)["properties"]["SpoutReceivers"][0]["Name"]; }

	void ExpectNothingToUndoOrRedo()
	{
		EXPECT_EQ(GetRefusal({{"do", "undo"}}), "there is nothing to undo");
		EXPECT_EQ(GetRefusal({{"do", "redo"}}), "there is nothing to redo");
	}
};

TEST_F(FUndoRequestsTest, SayThatThereIsNothingAtFirst)
{
	ExpectNothingToUndoOrRedo();
}

TEST_F(FUndoRequestsTest, TakeBackAnActorThatWasPlaced)
{
	const std::string First = Place("ZAVCineCamCapture");
	Place("ZAVSpoutReceiverManager");
	const FAnswer Placed = GetLevel();
	EXPECT_EQ(Ask({{"do", "undo"}}), (FAnswer{{"do", "undo"}, {"ok", true}, {"step", "Create Actors"}}));
	const FAnswer Undone = GetLevel();
	ASSERT_EQ(Undone["actors"].size(), 1u);
	EXPECT_EQ(Undone["actors"][0]["name"], First);
	EXPECT_EQ(Undone["selected"], FAnswer::array());
	EXPECT_EQ(Undone["dirty"], true);
	EXPECT_EQ(Ask({{"do", "redo"}}), (FAnswer{{"do", "redo"}, {"ok", true}, {"step", "Create Actors"}}));
	EXPECT_EQ(GetLevel()["actors"], Placed["actors"]);
	EXPECT_EQ(GetSelected(), FAnswer::array());
}

TEST_F(FUndoRequestsTest, GoThroughAllStepsAndNoFurther)
{
	Place("ZAVSpoutReceiverManager");
	Rename(TEXT("A"));
	Rename(TEXT("B"));
	EXPECT_EQ(Ask({{"do", "undo"}})["step"], "Edit Name");
	EXPECT_EQ(GetReceiver(), "A");
	Ask({{"do", "collect"}});
	EXPECT_EQ(Ask({{"do", "undo"}})["step"], "Edit Name");
	EXPECT_EQ(Ask({{"do", "undo"}})["step"], "Create Actors");
	EXPECT_EQ(GetRefusal({{"do", "undo"}}), "there is nothing to undo");
	for (int32 Step = 0; Step < 3; ++Step)
	{
		Ask({{"do", "collect"}});
		Ask({{"do", "redo"}});
	}
	EXPECT_EQ(GetRefusal({{"do", "redo"}}), "there is nothing to redo");
	EXPECT_EQ(GetReceiver(), "B");
}

TEST_F(FUndoRequestsTest, GiveNoActorTheNameOfOneThatCanComeBack)
{
	const std::string Undone = Place("ZAVSpoutReceiverManager");
	Ask({{"do", "undo"}});
	EXPECT_NE(Place("ZAVSpoutReceiverManager"), Undone);
	EXPECT_EQ(GetRefusal({{"do", "redo"}}), "there is nothing to redo");
}

TEST_F(FUndoRequestsTest, ForgetTheHistoryWithTheLevel)
{
	for (const json& Open : {json{{"do", "new-level"}},
			 json{{"do", "open-level"}, {"file", std::string(QUILLON_SAMPLES_DIR) + "/studio.json"}}})
	{
		Place("ZAVSpoutReceiverManager");
		Place("ZAVSpoutReceiverManager");
		Ask({{"do", "undo"}});
		Ask(Open);
		ExpectNothingToUndoOrRedo();
	}
}

TEST_F(FUndoRequestsTest, KeepTheHistoryWhenTheLevelIsSaved)
{
	Place("ZAVSpoutReceiverManager");
	const FTemporaryFolder Folder;
	Ask({{"do", "save-level"}, {"file", Folder.File("level.json")}});
	EXPECT_EQ(Ask({{"do", "undo"}})["step"], "Create Actors");
	EXPECT_EQ(GetLevel()["dirty"], true);
}

TEST_F(FUndoRequestsTest, LeaveAloneWhatTheWizardMade)
{
	Place("ZAVSpoutReceiverManager");
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	Ask({{"do", "type"}, {"tab", "CineStreamWizard"}, {"text", "Main"}, {"commit", "none"}});
	Ask({{"do", "click"}, {"tab", "CineStreamWizard"}, {"text", "Create Instant Cinestream Output"}});
	const FAnswer Before = GetLevel()["actors"];
	ASSERT_EQ(Before.size(), 3u);
	Ask({{"do", "undo"}});
	EXPECT_EQ(GetLevel()["actors"], FAnswer::array({Before[1], Before[2]}));
	Ask({{"do", "redo"}});
	EXPECT_EQ(GetLevel()["actors"], Before);
	// What the wizard selects stays selected.
	EXPECT_EQ(GetSelected(), FAnswer::array({Before[1]["name"]}));
}
