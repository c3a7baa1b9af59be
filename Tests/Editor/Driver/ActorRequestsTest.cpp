// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"
#include "ZAVSpoutReceiverManager.h"

using nlohmann::json;

class FActorRequestsTest : public FEditorStateFixture
{
protected:
	template <typename ActorType>
	ActorType& Spawn(int32 World)
	{
		return *Session.GetEditor().GetWorld(World)->SpawnActor<ActorType>();
	}

	FAnswer GetActor(size_t Index) { return Ask({{"do", "level"}})["actors"].at(Index); }
};

TEST_F(FActorRequestsTest, PlacesAnActorAndSelectsItAlone)
{
	const std::string First = Place("ZAVSpoutReceiverManager");
	const std::string Second = Place("ZAVSpoutReceiverManager");
	EXPECT_NE(First, Second);
	const FAnswer Level = Ask({{"do", "level"}});
	EXPECT_EQ(Level["dirty"], true);
	EXPECT_EQ(Level["selected"], FAnswer({Second}));
	ASSERT_EQ(Level["actors"].size(), 2u);
	EXPECT_EQ(Level["actors"][0]["name"], First);
	EXPECT_EQ(Level["actors"][1]["name"], Second);
	EXPECT_EQ(Level["actors"][1]["class"], "ZAVSpoutReceiverManager");
	EXPECT_EQ(Level["actors"][1]["location"], FAnswer({1, 2, 3}));
	EXPECT_EQ(Level["actors"][1]["rotation"], FAnswer({4, 5, 6}));
}

TEST_F(FActorRequestsTest, RefusesClassesThatCannotBePlaced)
{
	json Request = {{"do", "place"}, {"location", {0, 0, 0}}, {"rotation", {0, 0, 0}}};
	for (const char* Class : {"Nothing", "", "zavcinecamcapture", "AZAVCineCamCapture", "TextureRenderTarget2D"})
	{
		Request["class"] = Class;
		EXPECT_EQ(GetRefusal(Request), "there is no class of actors \"" + std::string(Class) + "\"");
	}
	Request["class"] = std::string(5000, 'x');
	EXPECT_EQ(GetRefusal(Request).find("there is no class of actors \"xxx"), 0u);
}

TEST_F(FActorRequestsTest, RefusesAPlaceForAnActorThatHasNone)
{
	EXPECT_EQ(GetRefusal({{"do", "place"}, {"class", "Actor"}, {"location", {0, 0, 1}}, {"rotation", {0, 0, 0}}}),
		"actors of this class have no place in the world");
	Ask({{"do", "place"}, {"class", "Actor"}, {"location", {0, 0, 0}}, {"rotation", {0, 0, 0}}});
	EXPECT_EQ(GetActor(0)["class"], "Actor");
}

TEST_F(FActorRequestsTest, ShowsNumbersAsTheyWereSet)
{
	Ask({{"do", "place"}, {"class", "ZAVCineCamCapture"}, {"location", {0.1, -3e5, 16777217}},
		{"rotation", {-0.0, 720.5, 1e-20}}});
	const std::string Line = FRequestTable::Answer(Session, "{\"do\":\"level\"}");
	EXPECT_NE(Line.find("\"location\":[0.1,-300000,16777216],\"rotation\":[-0.0,720.5,1e-20]"), std::string::npos)
		<< Line;
}

TEST_F(FActorRequestsTest, ShowsEveryPropertyWithItsDefaults)
{
	Place("ZAVSpoutReceiverManager");
	Place("ZAVCineCamCapture");
	Place("ZAVSpoutSenderManager");
	EXPECT_EQ(GetActor(0)["properties"].dump(),
		"{\"SpoutReceivers\":[{\"Name\":\"\",\"UseFirstAvailableSender\":true,\"Active\":true,\"RenderTarget\":null}]}");
	EXPECT_EQ(
		GetActor(1)["properties"].dump(), "{\"CaptureComponent\":{\"TextureTarget\":null,\"ShowFlagSettings\":[]}}");
	EXPECT_EQ(GetActor(2)["properties"].dump(), "{\"SpoutSenders\":[]}");
}

TEST_F(FActorRequestsTest, ShowsWhatNoFileCouldHold)
{
	AZAVSpoutReceiverManager& Manager = Spawn<AZAVSpoutReceiverManager>(0);
	const TCHAR Lone[] = {0xD800, 'a', 0};
	Manager.SpoutReceivers[0].Name = Lone;
	Manager.SpoutReceivers[0].RenderTarget = NewObject<UTextureRenderTarget2D>(&Manager, FName("Target"));
	const FAnswer Receiver = GetActor(0)["properties"]["SpoutReceivers"][0];
	EXPECT_EQ(Receiver["Name"], "\uFFFDa");
	EXPECT_NE(Receiver["RenderTarget"].get<std::string>().find("ZAVSpoutReceiverManager_0.Target"), std::string::npos);
}

TEST_F(FActorRequestsTest, ListsTheActorsOfBothWorldsInOrder)
{
	Spawn<AZAVSpoutReceiverManager>(1);
	Spawn<AZAVCineCamCapture>(0);
	EXPECT_EQ(GetActor(0)["world"], 0);
	EXPECT_EQ(GetActor(0)["class"], "ZAVCineCamCapture");
	EXPECT_EQ(GetActor(1)["world"], 1);
	EXPECT_EQ(GetActor(1)["class"], "ZAVSpoutReceiverManager");
}

TEST_F(FActorRequestsTest, CountsLevelDirtiedBroadcasts)
{
	EXPECT_EQ(Ask({{"do", "level"}})["dirtied"], 0);
	ULevel::LevelDirtiedEvent.Broadcast();
	ULevel::LevelDirtiedEvent.Broadcast();
	EXPECT_EQ(Ask({{"do", "level"}})["dirtied"], 2);
	Place("ZAVCineCamCapture");
	EXPECT_EQ(Ask({{"do", "level"}})["dirtied"], 2);
}

TEST_F(FActorRequestsTest, ListsAssetsInTheOrderOfTheirMaking)
{
	for (const char* Name : {"B", "A"})
	{
		Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
		Ask({{"do", "type"}, {"tab", "CineStreamWizard"}, {"text", Name}, {"commit", "none"}});
		Ask({{"do", "click"}, {"tab", "CineStreamWizard"}, {"text", "Create Instant Cinestream Output"}});
		Ask({{"do", "close-tab"}, {"tab", "CineStreamWizard"}});
	}
	const auto Describe = [](const char* Path) {
		return FAnswer({{"path", Path}, {"class", "TextureRenderTarget2D"}, {"dirty", true}});
	};
	EXPECT_EQ(Ask({{"do", "assets"}})["assets"],
		FAnswer::array({Describe("/Game/CineStream/B"), Describe("/Game/CineStream/A")}));
	EXPECT_EQ(GetActor(0)["properties"]["CaptureComponent"]["TextureTarget"], "/Game/CineStream/B");
}

TEST_F(FActorRequestsTest, SelectsActorsByName)
{
	const std::string Camera = Place("ZAVCineCamCapture");
	const std::string Manager = Place("ZAVSpoutReceiverManager");
	const std::string Other = Spawn<AZAVSpoutReceiverManager>(1).GetName() == TEXT("ZAVSpoutReceiverManager_0")
		? "ZAVSpoutReceiverManager_0"
		: std::string();
	EXPECT_EQ(Manager, Other);
	Ask({{"do", "select"}, {"actors", {Manager, Camera, Manager}}});
	EXPECT_EQ(GetSelected(), FAnswer({Manager, Camera}));
	// Of two with one name it is that of the open level.
	EXPECT_EQ(
		GEditor->GetSelectedActors()->GetSelectedObject(0)->GetTypedOuter<UWorld>(), Session.GetEditor().GetWorld(0));
	Ask({{"do", "select"}, {"actors", json::array()}});
	EXPECT_EQ(GetSelected(), FAnswer::array());
}

TEST_F(FActorRequestsTest, TellsOnceThatTheSelectionChanged)
{
	const std::string Camera = Place("ZAVCineCamCapture");
	const std::string Manager = Place("ZAVSpoutReceiverManager");
	int32 Told = 0;
	const FDelegateHandle Handle =
		USelection::SelectionChangedEvent.AddLambda([&Told](UObject* Changed) { Told += Changed ? 1 : 0; });
	Ask({{"do", "select"}, {"actors", {Camera, Manager}}});
	EXPECT_EQ(Told, 1);
	Ask({{"do", "select"}, {"actors", json::array()}});
	EXPECT_EQ(Told, 2);
	Place("ZAVCineCamCapture");
	EXPECT_EQ(Told, 3);
	USelection::SelectionChangedEvent.Remove(Handle);
}

TEST_F(FActorRequestsTest, RefusesToSelectAnUnknownActor)
{
	const std::string Camera = Place("ZAVCineCamCapture");
	Ask({{"do", "select"}, {"actors", json::array()}});
	EXPECT_EQ(GetRefusal({{"do", "select"}, {"actors", {Camera, "nobody"}}}), "there is no actor \"nobody\"");
	EXPECT_EQ(GetRefusal({{"do", "select"}, {"actors", {""}}}), "there is no actor \"\"");
	EXPECT_EQ(GetRefusal({{"do", "select"}, {"actors", {std::string(5000, 'x')}}}).find("there is no actor \"xxx"), 0u);
}
