// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "TemporaryFolder.h"

#include "Editor.h"
#include "EditorViewportClient.h"
#include "GameFramework/Actor.h"

using nlohmann::json;

class FLevelRequestsTest : public FEditorStateFixture
{
protected:
	const FEditorViewportClient& GetClient(int32 Index) { return *GEditor->GetAllViewportClients()[Index]; }

	FTemporaryFolder Folder;
};

TEST_F(FLevelRequestsTest, OpensALevelInPlaceOfTheOpenOne)
{
	Place("ZAVSpoutReceiverManager");
	Ask({{"do", "open-level"}, {"file", std::string(QUILLON_SAMPLES_DIR) + "/studio.json"}});
	const FAnswer Level = Ask({{"do", "level"}});
	EXPECT_EQ(Level["dirty"], false);
	EXPECT_EQ(Level["selected"], FAnswer::array());
	const json Sample = json::parse(FTemporaryFolder::ReadFile(QUILLON_SAMPLES_DIR "/studio.json"));
	ASSERT_EQ(Level["actors"].size(), Sample["actors"].size());
	EXPECT_EQ(Level["actors"][0]["name"], FAnswer(Sample["actors"][0]["name"]));
	EXPECT_EQ(Ask({{"do", "assets"}})["assets"].size(), Sample["assets"].size());
}

TEST_F(FLevelRequestsTest, SavesTheLevelAndItsView)
{
	Place("ZAVSpoutReceiverManager");
	Ask({{"do", "view"}, {"location", {0.1, -2, 3}}, {"rotation", {10, 720, -0.5}}});
	Ask({{"do", "save-level"}, {"file", Folder.File("level.json")}});
	EXPECT_EQ(Ask({{"do", "level"}})["dirty"], false);
	const json Saved = json::parse(FTemporaryFolder::ReadFile(Folder.File("level.json")));
	EXPECT_EQ(Saved["view"], json::parse("{\"location\":[0.1,-2,3],\"rotation\":[10,720,-0.5]}"));
	ASSERT_EQ(Saved["actors"].size(), 1u);
	EXPECT_EQ(Saved["actors"][0]["name"], "ZAVSpoutReceiverManager_0");
}

TEST_F(FLevelRequestsTest, MakesAnEmptyLevel)
{
	Ask({{"do", "open-level"}, {"file", std::string(QUILLON_SAMPLES_DIR) + "/studio.json"}});
	Ask({{"do", "view"}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}});
	Place("ZAVSpoutReceiverManager");
	Ask({{"do", "new-level"}});
	const FAnswer Level = Ask({{"do", "level"}});
	EXPECT_EQ(Level["dirty"], false);
	EXPECT_EQ(Level["actors"], FAnswer::array());
	EXPECT_EQ(Level["selected"], FAnswer::array());
	EXPECT_EQ(Ask({{"do", "assets"}})["assets"], FAnswer::array());
	EXPECT_EQ(GetClient(0).GetViewLocation(), FVector());
	EXPECT_EQ(GetClient(0).GetViewRotation(), FRotator());
}

TEST_F(FLevelRequestsTest, KeepsTabsOpenAcrossLevels)
{
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	Ask({{"do", "new-level"}});
	Ask({{"do", "open-level"}, {"file", std::string(QUILLON_SAMPLES_DIR) + "/studio.json"}});
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"].size(), 1u);
}

TEST_F(FLevelRequestsTest, RefusesFilesThatAreNoLevel)
{
	Place("ZAVSpoutReceiverManager");
	const std::string Missing = Folder.File("missing.json");
	EXPECT_EQ(GetRefusal({{"do", "open-level"}, {"file", Missing}}), Missing + ": No such file or directory");
	const std::string Bad = Folder.Write("bad.json", "{\"actors\":[{\"class\":\"Nothing\",\"name\":\"A\"}]}");
	EXPECT_EQ(GetRefusal({{"do", "open-level"}, {"file", Bad}}).find(Bad + ": /actors/0/class"), 0u);
	EXPECT_NE(GetRefusal({{"do", "open-level"}, {"file", ""}}), "");
}

TEST_F(FLevelRequestsTest, NeedsTheAssetRegistry)
{
	Ask({{"do", "module"}, {"name", "AssetRegistry"}, {"action", "unload"}});
	const std::string Studio = std::string(QUILLON_SAMPLES_DIR) + "/studio.json";
	const std::string Reason = "a level needs the module \"AssetRegistry\", which is not loaded";
	EXPECT_EQ(GetRefusal({{"do", "open-level"}, {"file", Studio}}), Reason);
	EXPECT_EQ(GetRefusal({{"do", "new-level"}}), Reason);
	EXPECT_EQ(GetRefusal({{"do", "save-level"}, {"file", Folder.File("level.json")}}), Reason);
	Ask({{"do", "module"}, {"name", "AssetRegistry"}, {"action", "load"}});
	Ask({{"do", "open-level"}, {"file", Studio}});
}

TEST_F(FLevelRequestsTest, EmptiesTheSecondWorldToo)
{
	for (const char* Do : {"new-level", "open-level"})
	{
		Session.GetEditor().GetWorld(1)->SpawnActor<AActor>();
		ASSERT_NE(Ask({{"do", "level"}})["actors"].size(), 0U);
		json Request = {{"do", Do}};
		if (Request["do"] == "open-level")
		{
			Request["file"] = std::string(QUILLON_SAMPLES_DIR) + "/empty.json";
		}
		Ask(Request);
		EXPECT_EQ(Ask({{"do", "level"}})["actors"].size(), 0U) << Do;
	}
}

TEST_F(FLevelRequestsTest, SavesTheViewOfTheLevelWhicheverViewportIsActive)
{
	const std::string File = Folder.File("view.json");
	const json Setups = {{{"clients", {{{"world", 1}}, {{"world", 0}}}}, {"active", 0}, {"client", 1}},
		{{"clients", {{{"world", 0}}, {{"world", 1}}}}, {"active", 1}, {"client", 0}},
		{{"clients", {{{"world", 0}}}}, {"active", nullptr}, {"client", 0}}};
	for (const json& Setup : Setups)
	{
		Ask({{"do", "viewports"}, {"clients", Setup["clients"]}, {"active", Setup["active"]}});
		Ask({{"do", "view"}, {"client", Setup["client"]}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}});
		Ask({{"do", "save-level"}, {"file", File}});
		Ask({{"do", "new-level"}});
		const FEditorViewportClient& Client = GetClient(Setup["client"].get<int32>());
		EXPECT_TRUE(Client.GetViewLocation() == FVector()) << Setup;
		Ask({{"do", "open-level"}, {"file", File}});
		EXPECT_TRUE(Client.GetViewLocation() == FVector(1.0f, 2.0f, 3.0f)) << Setup;
		EXPECT_TRUE(Client.GetViewRotation() == FRotator(4.0f, 5.0f, 6.0f)) << Setup;
	}
}

TEST_F(FLevelRequestsTest, OpensALevelWithoutMovingTheViewOnAnotherWorld)
{
	Ask({{"do", "viewports"}, {"clients", {{{"world", 0}}, {{"world", 1}}}}, {"active", 1}});
	Ask({{"do", "view"}, {"client", 1}, {"location", {1, 2, 3}}, {"rotation", {0, 0, 0}}});
	Ask({{"do", "new-level"}});
	EXPECT_TRUE(GetClient(1).GetViewLocation() == FVector(1.0f, 2.0f, 3.0f));
}

TEST_F(FLevelRequestsTest, RefusesFilesThatCannotBeWritten)
{
	Place("ZAVSpoutReceiverManager");
	const std::string Nowhere = Folder.File("missing/level.json");
	EXPECT_EQ(GetRefusal({{"do", "save-level"}, {"file", Nowhere}}), Nowhere + ": No such file or directory");
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(FLevelRequestsTest, MovesTheActiveViewUnlessToldWhich)
{
	Ask({{"do", "viewports"}, {"clients", {{{"world", 0}}, {{"world", 1}}}}, {"active", 1}});
	Ask({{"do", "view"}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}});
	Ask({{"do", "view"}, {"location", {7, 8, 9}}, {"rotation", {10, 11, 12}}, {"client", 0}});
	EXPECT_EQ(GetClient(1).GetViewLocation(), FVector(1.0f, 2.0f, 3.0f));
	EXPECT_EQ(GetClient(1).GetViewRotation(), FRotator(4.0f, 5.0f, 6.0f));
	EXPECT_EQ(GetClient(0).GetViewLocation(), FVector(7.0f, 8.0f, 9.0f));
	EXPECT_EQ(GetClient(0).GetViewRotation(), FRotator(10.0f, 11.0f, 12.0f));
}

TEST_F(FLevelRequestsTest, RefusesToMoveAViewThatThereIsNot)
{
	json View = {{"do", "view"}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}, {"client", 1}};
	EXPECT_EQ(GetRefusal(View), "there is no client 1");
	Ask({{"do", "viewports"}, {"active", nullptr}});
	View.erase("client");
	EXPECT_EQ(GetRefusal(View), "no viewport is active");
	View["location"] = {1, 2};
	EXPECT_EQ(GetRefusal(View), "parameter \"location\": a list of three numbers is wanted");
}

TEST_F(FLevelRequestsTest, StartsWithOneActiveViewOnTheLevel)
{
	ASSERT_EQ(GEditor->GetAllViewportClients().Num(), 1);
	EXPECT_EQ(GetClient(0).GetWorld(), Session.GetEditor().GetWorld(0));
	EXPECT_EQ(GetClient(0).Viewport, GEditor->GetActiveViewport());
}

TEST_F(FLevelRequestsTest, ReplacesTheViewports)
{
	Ask({{"do", "view"}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}});
	Ask({{"do", "viewports"}, {"clients", {{{"world", 1}}, {{"world", 0}}}}, {"active", 1}});
	ASSERT_EQ(GEditor->GetAllViewportClients().Num(), 2);
	EXPECT_EQ(GetClient(0).GetWorld(), Session.GetEditor().GetWorld(1));
	EXPECT_EQ(GetClient(1).GetWorld(), Session.GetEditor().GetWorld(0));
	EXPECT_EQ(GetClient(1).Viewport, GEditor->GetActiveViewport());
	EXPECT_EQ(GetClient(1).GetViewLocation(), FVector());
	Ask({{"do", "new-level"}});
	EXPECT_EQ(GetClient(1).GetWorld(), Session.GetEditor().GetWorld(0));
	Ask({{"do", "viewports"}});
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 1);
}

TEST_F(FLevelRequestsTest, CanBeWithoutViewports)
{
	Ask({{"do", "viewports"}, {"clients", json::array()}, {"active", nullptr}});
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 0);
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
	Ask({{"do", "viewports"}, {"clients", {{{"world", 0}}}}});
	EXPECT_EQ(GetClient(0).Viewport, GEditor->GetActiveViewport());
	Ask({{"do", "viewports"}, {"clients", json::array()}});
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST_F(FLevelRequestsTest, RefusesViewportsThatCannotBe)
{
	EXPECT_EQ(GetRefusal({{"do", "viewports"}, {"active", 1}}), "there is no client 1 to be active");
	EXPECT_EQ(GetRefusal({{"do", "viewports"}, {"clients", json::array()}, {"active", 0}}),
		"there is no client 0 to be active");
	EXPECT_EQ(GetRefusal({{"do", "viewports"}, {"clients", {{{"world", 2}}}}}),
		"parameter \"clients\": a list of {\"world\": 0 or 1} is wanted");
}
