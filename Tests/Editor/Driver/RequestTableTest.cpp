// Copyright Corvane. MIT License.
#include "Driver/RequestTable.h"

#include "EditorStateFixture.h"

#include <set>

#include "Engine/World.h"
#include "UObject/WeakObjectPtrTemplates.h"

using nlohmann::json;

class FRequestTableTest : public FEditorStateFixture
{};

TEST_F(FRequestTableTest, RefusesWhatIsNoJson)
{
	for (const char* Line : {"", " ", "\r", "garbage", "{", "{\"do\":\"help\"}}", "{\"do\":\"help\",}", "'help'"})
	{
		EXPECT_NE(GetLineRefusal(Line).find("line 1, column "), std::string::npos) << Line;
	}
}

TEST_F(FRequestTableTest, RefusesTextThatIsNotUnicode)
{
	EXPECT_NE(GetLineRefusal("{\"do\":\"\xff\"}").find("UTF-8"), std::string::npos);
	EXPECT_NE(GetLineRefusal("{\"do\":\"\xed\xa0\x80\"}").find("UTF-8"), std::string::npos);
	EXPECT_NE(GetLineRefusal("{\"do\":\"\xc0\xaf\"}").find("UTF-8"), std::string::npos);
	for (const char* Escape : {"\\uD800", "\\uDC00", "\\uD800\\u0041", "\\uD800\\uD800"})
	{
		EXPECT_NE(GetLineRefusal("{\"do\":\"" + std::string(Escape) + "\"}").find("surrogate"), std::string::npos);
	}
}

TEST_F(FRequestTableTest, RefusesNullCharacters)
{
	GetLineRefusal(std::string("{\"do\":\"help\0\"}", 14));
	GetLineRefusal(std::string("\0{\"do\":\"help\"}", 14));
	EXPECT_EQ(GetLineRefusal(std::string("{\"do\":\"collect\"}\0x", 18)), "line 1, column 17: a null character");
	EXPECT_EQ(GetLineRefusal("{\"do\":\"open-level\",\"file\":\"a\\u0000b\"}", "open-level"),
		"parameter \"file\": the text holds a null character");
}

TEST_F(FRequestTableTest, RefusesAKeyThatStandsTwice)
{
	EXPECT_NE(GetLineRefusal("{\"do\":\"help\",\"do\":\"help\"}").find("twice"), std::string::npos);
}

TEST_F(FRequestTableTest, RefusesWhatIsNestedTooDeep)
{
	const std::string Deep = std::string(65, '[') + std::string(65, ']');
	EXPECT_NE(GetLineRefusal(Deep).find("deeper than 64"), std::string::npos);
	EXPECT_NE(GetLineRefusal(std::string(1000000, '[')).find("deeper than 64"), std::string::npos);
}

TEST_F(FRequestTableTest, RefusesJsonThatIsNoRequest)
{
	for (const char* Line : {"[]", "[{\"do\":\"help\"}]", "{}", "5", "null", "\"help\"", "{\"Do\":\"help\"}"})
	{
		EXPECT_EQ(GetLineRefusal(Line), "a request is an object with \"do\"") << Line;
	}
}

TEST_F(FRequestTableTest, RepeatsWhateverStandsAsDo)
{
	EXPECT_EQ(GetLineRefusal("{\"do\":5}", 5), "\"do\": a text is wanted");
	EXPECT_EQ(GetLineRefusal("{\"do\":{\"a\":[1]}}", {{"a", {1}}}), "\"do\": a text is wanted");
	EXPECT_EQ(GetLineRefusal("{\"do\":null}"), "\"do\": a text is wanted");
	EXPECT_EQ(GetLineRefusal("{\"do\":\"\\u00e4\\n\"}", "ä\n"), "unknown request \"ä\\u000A\"");
}

TEST_F(FRequestTableTest, RefusesUnknownRequestsAndParameters)
{
	EXPECT_EQ(GetRefusal({{"do", "Help"}}), "unknown request \"Help\"");
	EXPECT_EQ(GetRefusal({{"do", "help"}, {"extra", nullptr}}), "unknown parameter \"extra\"");
	EXPECT_EQ(GetRefusal({{"do", "select"}, {"Actors", json::array()}}), "unknown parameter \"Actors\"");
}

TEST_F(FRequestTableTest, RefusesAMissingParameter)
{
	EXPECT_EQ(GetRefusal({{"do", "select"}}), "missing parameter \"actors\"");
	EXPECT_EQ(GetRefusal({{"do", "module"}, {"name", "Quillon"}}), "missing parameter \"action\"");
}

TEST_F(FRequestTableTest, ChecksEveryParameterOfEveryRequest)
{
	// No parameter can be a list of lists, and none but one type may be null.
	for (const FRequestDefinition& Definition : FRequestTable::GetAll())
	{
		for (const FParameter& Parameter : Definition.Parameters)
		{
			const json Request = {{"do", Definition.Do}, {Parameter.Name, {{{}}}}};
			EXPECT_EQ(GetRefusal(Request).find("parameter \"" + std::string(Parameter.Name) + "\": "), 0u) << Request;
		}
	}
}

TEST_F(FRequestTableTest, ListsItselfAsHelp)
{
	const FAnswer Requests = Ask({{"do", "help"}})["requests"];
	ASSERT_EQ(Requests.size(), FRequestTable::GetAll().size());
	for (size_t Index = 0; Index < Requests.size(); ++Index)
	{
		const FRequestDefinition& Definition = FRequestTable::GetAll()[Index];
		EXPECT_EQ(Requests[Index]["do"], Definition.Do);
		ASSERT_EQ(Requests[Index]["parameters"].size(), Definition.Parameters.size());
		for (size_t Parameter = 0; Parameter < Definition.Parameters.size(); ++Parameter)
		{
			const FAnswer Expected = {{"name", Definition.Parameters[Parameter].Name},
				{"type", Definition.Parameters[Parameter].GetTypeName()},
				{"required", Definition.Parameters[Parameter].bRequired}};
			EXPECT_EQ(Requests[Index]["parameters"][Parameter], Expected);
		}
	}
}

TEST_F(FRequestTableTest, KnowsEachRequestOnce)
{
	std::set<std::string> Known;
	for (const FRequestDefinition& Definition : FRequestTable::GetAll())
	{
		EXPECT_TRUE(Known.insert(Definition.Do).second) << Definition.Do;
	}
	const std::set<std::string> Agreed = {"help", "open-level", "new-level", "save-level", "view", "viewports", "level",
		"assets", "place", "select", "tabs", "invoke-tab", "close-tab", "widgets", "type", "paste", "click", "geometry",
		"toolbar", "menu", "choose", "placement", "details", "set", "pick", "tick", "undo", "redo", "senders",
		"announce", "notifications", "press", "outside", "registered", "module", "restart", "advance", "collect",
		"screenshot"};
	EXPECT_EQ(Known, Agreed);
}

TEST_F(FRequestTableTest, AnswersInOneLineWithDoAndOkFirst)
{
	EXPECT_EQ(FRequestTable::Answer(Session, "\t{ \"do\" : \"collect\" }\r"), "{\"do\":\"collect\",\"ok\":true}");
	EXPECT_EQ(FRequestTable::Answer(Session, "{\"do\":\"no\"}"),
		"{\"do\":\"no\",\"ok\":false,\"error\":\"unknown request \\\"no\\\"\"}");
	EXPECT_EQ(FRequestTable::Refuse("why\n"), "{\"do\":null,\"ok\":false,\"error\":\"why\\n\"}");
}

TEST_F(FRequestTableTest, TicksOnceAfterEachRequest)
{
	for (const char* Line : {"{\"do\":\"help\"}", "{\"do\":\"no\"}", "garbage"})
	{
		const double Before = Session.GetTime();
		const TWeakObjectPtr<UObject> Garbage = NewObject<UWorld>();
		FRequestTable::Answer(Session, Line);
		EXPECT_DOUBLE_EQ(Session.GetTime() - Before, 1.0 / 60.0) << Line;
		EXPECT_FALSE(Garbage.IsValid()) << "the editor collects garbage as it ticks: " << Line;
	}
}
