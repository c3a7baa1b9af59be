// Copyright Corvane. MIT License.
#include "Driver/Request.h"

#include <gtest/gtest.h>

using nlohmann::json;

namespace
{
	std::string Check(EParameterType Type, const char* Text)
	{
		return FParameter{"p", Type, true}.Check(json::parse(Text));
	}

	void ExpectTaken(EParameterType Type, const std::vector<const char*>& Texts)
	{
		for (const char* Text : Texts)
		{
			EXPECT_EQ(Check(Type, Text), "") << Text;
		}
	}

	void ExpectRefused(EParameterType Type, const std::vector<const char*>& Texts)
	{
		for (const char* Text : Texts)
		{
			EXPECT_NE(Check(Type, Text), "") << Text;
		}
	}
}

TEST(FParameter, TakesTexts)
{
	ExpectTaken(EParameterType::Text, {"\"\"", "\"a\"", "\"\\uD83D\\uDE00\""});
	ExpectRefused(EParameterType::Text, {"null", "5", "true", "[\"a\"]", "{}", "\"\\u0000\""});
	ExpectTaken(EParameterType::Texts, {"[]", "[\"\"]", "[\"a\",\"a\"]"});
	ExpectRefused(EParameterType::Texts, {"\"a\"", "null", "[5]", "[\"a\",null]", "[[\"a\"]]", "[\"\\u0000\"]"});
}

TEST(FParameter, TakesWholeNumbersAsIndex)
{
	ExpectTaken(EParameterType::Index, {"0", "1", "2147483647"});
	ExpectRefused(EParameterType::Index, {"-1", "2147483648", "18446744073709551615", "1.0", "\"1\"", "null", "true"});
	ExpectTaken(EParameterType::IndexOrNull, {"0", "null"});
	ExpectRefused(EParameterType::IndexOrNull, {"-1", "false", "\"\""});
	ExpectTaken(EParameterType::IndexOrText, {"0", "\"a\""});
	ExpectRefused(EParameterType::IndexOrText, {"-1", "null", "\"\\u0000\"", "1.5"});
}

TEST(FParameter, TakesSeconds)
{
	ExpectTaken(EParameterType::Seconds, {"0", "0.5", "1e9"});
	ExpectRefused(EParameterType::Seconds, {"-1e-9", "-1", "1.1e9", "\"1\"", "null", "[1]"});
}

TEST(FParameter, TakesVectorsThatFitFloats)
{
	ExpectTaken(EParameterType::Vector, {"[0,0.1,-3.4e38]", "[-0.0,1e-50,16777217]"});
	ExpectRefused(EParameterType::Vector, {"[0,0]", "[0,0,0,0]", "[0,0,3.5e38]", "[0,0,null]", "0", "{}", "null"});
}

TEST(FParameter, TakesValues)
{
	ExpectTaken(EParameterType::Value, {"true", "-1.5", "\"\""});
	ExpectRefused(EParameterType::Value, {"null", "[]", "{}", "\"\\u0000\""});
}

TEST(FParameter, TakesClients)
{
	ExpectTaken(EParameterType::Clients, {"[]", "[{\"world\":0},{\"world\":1}]"});
	const json Many(64, {{"world", 0}});
	ExpectTaken(EParameterType::Clients, {Many.dump().c_str()});
	json TooMany = Many;
	TooMany.push_back({{"world", 0}});
	ExpectRefused(EParameterType::Clients, {TooMany.dump().c_str()});
	ExpectRefused(EParameterType::Clients,
		{"{}", "[0]", "[{}]", "[{\"world\":2}]", "[{\"world\":-1}]", "[{\"world\":0.0}]", "[{\"world\":0,\"a\":0}]",
			"[{\"World\":0}]", "null"});
}

TEST(FRequest, GivesWhatWasSet)
{
	const FRequest Request({{"text", "\u00e4"}, {"texts", {"a", "b"}}, {"index", 2147483647}, {"seconds", 0.25},
		{"vector", {1, 0.1, 16777217}}, {"null", nullptr}, {"clients", {{{"world", 1}}, {{"world", 0}}}}});
	EXPECT_TRUE(Request.GetText("text").Equals(TEXT("\u00e4")));
	EXPECT_EQ(Request.GetUtf8("text"), "\u00e4");
	ASSERT_EQ(Request.GetTexts("texts").size(), 2u);
	EXPECT_TRUE(Request.GetTexts("texts")[1].Equals(TEXT("b")));
	EXPECT_EQ(Request.GetIndex("index"), 2147483647);
	EXPECT_EQ(Request.GetSeconds("seconds"), 0.25);
	EXPECT_EQ(Request.GetVector("vector"), FVector(1.0f, 0.1f, 16777216.0f));
	EXPECT_EQ(Request.GetRotator("vector"), FRotator(1.0f, 0.1f, 16777216.0f));
	EXPECT_TRUE(Request.Has("null") && Request.IsNull("null"));
	EXPECT_FALSE(Request.Has("other"));
	EXPECT_EQ(Request.GetWorlds("clients"), (std::vector<int32>{1, 0}));
}

TEST(FRequestDeathTest, HasNoOtherParameter)
{
	EXPECT_EXIT(FRequest(json::object()).GetIndex("index"), ::testing::ExitedWithCode(3), "no parameter index");
}
