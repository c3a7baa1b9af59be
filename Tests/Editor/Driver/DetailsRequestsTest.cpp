// Copyright Corvane. MIT License.
#include "DetailsFixture.h"

#include "EditorAssets.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"

using nlohmann::json;

class FDetailsRequestsTest : public FDetailsFixture
{};

TEST_F(FDetailsRequestsTest, ShowsNothingWhileNothingIsSelected)
{
	EXPECT_EQ(GetCategories(), FAnswer::array());
	SpawnSelected();
	EXPECT_NE(GetCategories(), FAnswer::array());
	Ask({{"do", "select"}, {"actors", json::array()}});
	EXPECT_EQ(GetCategories(), FAnswer::array());
}

TEST_F(FDetailsRequestsTest, ListsTheActorsCategoriesBeforeItsComponents)
{
	SpawnSelected();
	const FAnswer Categories = GetCategories();
	ASSERT_EQ(Categories.size(), 2u);
	EXPECT_EQ(Categories[0]["name"], "Test");
	EXPECT_EQ(Categories[0]["rows"][0]["path"], "bFlag");
	EXPECT_EQ(Categories[1]["name"], "Test");
	EXPECT_EQ(Categories[1]["rows"][0]["path"], "Strength");
}

TEST_F(FDetailsRequestsTest, ShowsEachKindOfValue)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	Actor.Text = TEXT("text");
	Actor.Label = FName("Name");
	Actor.Texture = static_cast<UTextureRenderTarget2D*>(
		FEditorAssets::Make(FName("/Game/Screen"), UTextureRenderTarget2D::StaticClass()));
	Actor.Numbers = {4, 5};
	Actor.Inner.Target = &Actor;
	const auto Expect = [this](const char* Path, const char* Kind, const FAnswer& Value)
	{
		const FAnswer Row = GetRow(Path);
		EXPECT_EQ(Row["kind"], Kind) << Path;
		EXPECT_EQ(Row["value"], Value) << Path;
		EXPECT_EQ(Row["mixed"], false) << Path;
		EXPECT_EQ(Row["options"], nullptr) << Path;
		EXPECT_EQ(Row["group"], nullptr) << Path;
		EXPECT_EQ(Row["groupIndex"], nullptr) << Path;
	};
	Expect("bFlag", "bool", true);
	Expect("Number", "number", 3);
	Expect("Fraction", "number", 0.25);
	Expect("Text", "text", "text");
	Expect("Label", "text", "Name");
	Expect("Texture", "object", "/Game/Screen");
	Expect("Inner", "struct", "4 members");
	Expect("Inner.Count", "number", 7);
	Expect("Inner.Target", "object", std::string(TCHAR_TO_UTF8(*Actor.GetName())));
	Expect("Numbers", "struct", "2 Array elements");
	Expect("Numbers[1]", "number", 5);
	Expect("Actors", "struct", "0 Array elements");
	Expect("Strength", "number", 0.5);
	EXPECT_EQ(GetRow("bFlag")["state"], "checked");
	EXPECT_EQ(GetRow("Number")["state"], nullptr);
	EXPECT_EQ(GetRow("Numbers[1]")["name"], "1");
	EXPECT_EQ(GetRow("bFlag")["name"], "Flag");
	EXPECT_EQ(GetRow("bFlag")["filter"], "Flag");
}

TEST_F(FDetailsRequestsTest, SetsEachKindOfValueAsOneStep)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	Actor.Numbers = {4, 5};
	FEditorAssets::Make(FName("/Game/Screen"), UTextureRenderTarget2D::StaticClass());
	Set("bFlag", false);
	Set("Number", -9);
	Set("Fraction", 1.5);
	Set("Text", "a \"b\" {0} ü");
	Set("Label", "Some_Name_3");
	Set("Inner.Count", 12);
	Set("Numbers[1]", 50);
	Set("Texture", "/game/screen");
	Set("Inner.Target", TCHAR_TO_UTF8(*Actor.GetName()));
	Set("Translated", "plain");
	EXPECT_FALSE(Actor.bFlag);
	EXPECT_EQ(Actor.Number, -9);
	EXPECT_EQ(Actor.Fraction, 1.5f);
	EXPECT_TRUE(Actor.Text.Equals(TEXT("a \"b\" {0} \u00fc")));
	EXPECT_EQ(Actor.Label, FName("Some_Name_3"));
	EXPECT_EQ(Actor.Inner.Count, 12);
	EXPECT_EQ(Actor.Numbers[1], 50);
	ASSERT_NE(Actor.Texture, nullptr);
	EXPECT_EQ(Actor.Inner.Target, &Actor);
	EXPECT_TRUE(Actor.Translated.ToString().Equals(TEXT("plain")));
	Set("Texture", "None");
	EXPECT_EQ(Actor.Texture, nullptr);
	for (int Step = 0; Step < 11; ++Step)
	{
		Ask({{"do", "undo"}});
	}
	EXPECT_EQ(GetRefusal({{"do", "undo"}}), "there is nothing to undo");
	EXPECT_TRUE(Actor.bFlag);
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_TRUE(Actor.Text.IsEmpty());
	EXPECT_EQ(Actor.Numbers[1], 5);
	EXPECT_EQ(Actor.Inner.Target, nullptr);
}

TEST_F(FDetailsRequestsTest, RefusesWhatARowCannotHold)
{
	SpawnSelected();
	FEditorAssets::Make(FName("/Game/Screen"), UTextureRenderTarget2D::StaticClass());
	EXPECT_EQ(RefuseSet("Number", "five"), "parameter \"value\": a whole number is wanted");
	EXPECT_NE(RefuseSet("Number", 1.5), "");
	EXPECT_NE(RefuseSet("Number", 1e10), "");
	EXPECT_NE(RefuseSet("Fraction", 1e300), "");
	EXPECT_NE(RefuseSet("bFlag", "true"), "");
	EXPECT_NE(RefuseSet("Text", 5), "");
	EXPECT_NE(RefuseSet("Label", std::string(2000, 'x')), "");
	EXPECT_EQ(RefuseSet("Text", "two\nlines"),
		"parameter \"value\": the text holds a control character, which no edit box takes");
	EXPECT_EQ(RefuseSet("Texture", "/Game/Other"), "there is no object \"/Game/Other\"");
	EXPECT_EQ(RefuseSet("Inner.Target", "/Game/Screen"), "\"/Game/Screen\" is no Actor");
	EXPECT_EQ(RefuseSet("Inner", "x"), "row \"Inner\" has no value");
	EXPECT_EQ(
		GetRefusal({{"do", "pick"}, {"row", "Number"}, {"option", 0}}), "row \"Number\" has nothing to pick from");
	EXPECT_EQ(GetRefusal({{"do", "tick"}, {"row", "Number"}, {"state", "checked"}}), "row \"Number\" has no check box");
	EXPECT_EQ(GetRefusal({{"do", "tick"}, {"row", "bFlag"}, {"state", "perhaps"}}),
		"parameter \"state\": \"checked\" or \"unchecked\" is wanted");
}

TEST_F(FDetailsRequestsTest, FindsRowsByNumberPathAndName)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	Set(GetRow("Number")["id"], 1);
	EXPECT_EQ(Actor.Number, 1);
	Set("Fraction", 2);
	EXPECT_EQ(Actor.Fraction, 2.0f);
	EXPECT_EQ(RefuseSet("No such row", 1), "the details have no row \"No such row\"");
	EXPECT_EQ(RefuseSet("", 1), "the details have no row \"\"");
	EXPECT_EQ(RefuseSet(100000, 1), "the details have no row 100000");
	// A path goes before a name: "Label" is that of the structure's member as well.
	Set("Label", "x");
	EXPECT_EQ(Actor.Label, FName("x"));
	Actor.Numbers = {1};
	Actor.Structs.SetNum(1);
	const std::string Ids = GetRow("Numbers[0]")["id"].dump() + ", " + GetRow("Structs[0]")["id"].dump();
	EXPECT_EQ(RefuseSet("0", 1), "the details have several rows \"0\": " + Ids);
}

TEST_F(FDetailsRequestsTest, KeepsNumbersWhileTheSelectionStaysAndNeverGivesThemAgain)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	const int Number = GetRow("Number")["id"];
	const int Strength = GetRow("Strength")["id"];
	Actor.Numbers.Add(8);
	EXPECT_EQ(GetRow("Numbers[0]")["value"], 8);
	EXPECT_EQ(GetRow("Number")["id"], Number);
	EXPECT_EQ(GetRow("Strength")["id"], Strength);
	SpawnSelected();
	EXPECT_EQ(RefuseSet(Number, 1), "the details have no row " + std::to_string(Number));
	EXPECT_GT(GetRow("Number")["id"].get<int>(), Strength);
}

TEST_F(FDetailsRequestsTest, ShowsWhatSeveralActorsHaveInCommonAndSetsItOnAll)
{
	AEveryPropertyActor& First = SpawnSelected();
	First.Number = 1;
	First.bFlag = false;
	First.Component->Strength = 9.0f;
	AEveryPropertyActor& Second = SpawnSelected();
	for (const char* Path : {"Number", "bFlag", "Strength"})
	{
		EXPECT_EQ(GetRow(Path)["mixed"], true) << Path;
		EXPECT_EQ(GetRow(Path)["value"], nullptr) << Path;
	}
	EXPECT_EQ(GetRow("bFlag")["state"], "undetermined");
	EXPECT_EQ(GetRow("Fraction")["mixed"], false);
	Set("Number", 5);
	Set("Strength", 2);
	Ask({{"do", "tick"}, {"row", "bFlag"}, {"state", "unchecked"}});
	EXPECT_EQ(First.Number, 5);
	EXPECT_EQ(Second.Number, 5);
	EXPECT_EQ(First.Component->Strength, 2.0f);
	EXPECT_EQ(Second.Component->Strength, 2.0f);
	EXPECT_FALSE(First.bFlag || Second.bFlag);
	EXPECT_EQ(GetRow("Number")["value"], 5);
	// An undetermined box becomes checked on its way.
	for (int Step = 0; Step < 4; ++Step)
	{
		Ask({{"do", "undo"}});
	}
	EXPECT_EQ(First.Number, 1);
	EXPECT_EQ(Second.Number, 3);
}

TEST_F(FDetailsRequestsTest, ShowsOnlyTheCommonClassOfDifferentActors)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	const std::string Other = Place("ZAVSpoutReceiverManager");
	Ask({{"do", "select"}, {"actors", {TCHAR_TO_UTF8(*Actor.GetName()), Other}}});
	const std::vector<std::string> Names = GetNames();
	EXPECT_EQ(std::count(Names.begin(), Names.end(), "Number"), 0);
	EXPECT_EQ(std::count(Names.begin(), Names.end(), "Spout Receivers"), 0);
}

TEST_F(FDetailsRequestsTest, TicksOnlyABoxThatDoesNotShowTheState)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	Ask({{"do", "tick"}, {"row", "bFlag"}, {"state", "checked"}});
	EXPECT_TRUE(Actor.bFlag);
	EXPECT_EQ(GetRefusal({{"do", "undo"}}), "there is nothing to undo");
	Ask({{"do", "tick"}, {"row", "bFlag"}, {"state", "unchecked"}});
	EXPECT_FALSE(Actor.bFlag);
	Ask({{"do", "undo"}});
	EXPECT_TRUE(Actor.bFlag);
}

TEST_F(FDetailsRequestsTest, GoesWithTheObjectsThatItShows)
{
	AEveryPropertyActor& Actor = SpawnSelected();
	EXPECT_NE(GetNames(), std::vector<std::string>());
	Session.GetEditor().GetWorld(0)->DestroyActor(&Actor);
	EXPECT_EQ(GetNames(), std::vector<std::string>());
	Ask({{"do", "collect"}});
	EXPECT_EQ(RefuseSet("Number", 1), "the details have no row \"Number\"");
}

TEST_F(FDetailsRequestsTest, ShowsNothingWithoutThePropertyEditor)
{
	SpawnSelected();
	GetNames();
	Ask({{"do", "module"}, {"name", "PropertyEditor"}, {"action", "unload"}});
	EXPECT_EQ(GetCategories(), FAnswer::array());
	Ask({{"do", "module"}, {"name", "PropertyEditor"}, {"action", "load"}});
	EXPECT_EQ(GetCategories(), FAnswer::array());
	Ask({{"do", "select"}, {"actors", json::array()}});
	SpawnSelected();
	EXPECT_NE(GetCategories(), FAnswer::array());
}

TEST_F(FDetailsRequestsTest, LooksAtTheRowsBeforeItReachesForOne)
{
	Ask({{"do", "senders"}, {"names", {"A"}}});
	Place("ZAVSpoutReceiverManager");
	// The empty name that the receiver has at first is in the list only until somebody looks at it.
	const FAnswer Refused = AskLine(R"({"do":"pick","row":"SpoutReceivers[0].Name","option":""})");
	EXPECT_EQ(Refused["error"], "row \"Name\" has no option \"\"");
	Ask({{"do", "pick"}, {"row", "SpoutReceivers[0].Name"}, {"option", "A"}});
	EXPECT_EQ(GetRow("SpoutReceivers[0].Name")["value"], "A");
}

TEST_F(FDetailsRequestsTest, PicksAgainWhatWasUndone)
{
	Ask({{"do", "senders"}, {"names", {"A"}}});
	Place("ZAVSpoutReceiverManager");
	const json Pick = {{"do", "pick"}, {"row", "SpoutReceivers[0].Name"}, {"option", "A"}};
	Ask(Pick);
	EXPECT_EQ(GetRow("SpoutReceivers[0].Name")["value"], "A");
	Ask({{"do", "undo"}});
	Ask({{"do", "undo"}});
	EXPECT_EQ(GetRow("SpoutReceivers[0].Name")["value"], "Use first available sender");
	Ask(Pick);
	EXPECT_EQ(GetRow("SpoutReceivers[0].Name")["value"], "A");
}

TEST_F(FDetailsRequestsTest, TellsWhatValuesItTakes)
{
	SpawnSelected();
	for (const json& Value : {json(nullptr), json::array(), json::object()})
	{
		EXPECT_EQ(RefuseSet("Number", Value), "parameter \"value\": a text, a number, true or false is wanted");
	}
}
