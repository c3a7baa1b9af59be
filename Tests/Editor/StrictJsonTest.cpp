// Copyright Corvane. MIT License.
#include "StrictJson.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

using nlohmann::json;
using nlohmann::ordered_json;

namespace
{
	std::string ErrorOf(const std::string& Text)
	{
		json Ignored;
		std::string Error;
		EXPECT_FALSE(FStrictJson::Parse(Text, Ignored, Error)) << Text;
		return Error;
	}

	std::string Nested(size_t Levels)
	{
		return std::string(Levels, '[') + std::string(Levels, ']');
	}

	/** The number as it stands in a file, read again. */
	float ThroughText(float Value)
	{
		const std::string Text = FStrictJson::Number(Value).dump();
		return static_cast<float>(json::parse(Text).get<double>());
	}
}

TEST(FStrictJson, ParsesValuesOfEveryKind)
{
	json Value;
	std::string Error;
	ASSERT_TRUE(FStrictJson::Parse(R"({"a":[1,-2,0.5,true,null,"x"],"b":{}})", Value, Error)) << Error;
	EXPECT_EQ(Value.dump(), R"({"a":[1,-2,0.5,true,null,"x"],"b":{}})");
}

TEST(FStrictJson, NamesLineAndColumnOfASyntaxError)
{
	EXPECT_EQ(ErrorOf("{\n  \"a\": ?}").substr(0, 17), "line 2, column 8:");
}

TEST(FStrictJson, RefusesAnEmptyText)
{
	EXPECT_EQ(ErrorOf("").substr(0, 17), "line 1, column 1:");
}

TEST(FStrictJson, RefusesTextBehindTheDocument)
{
	EXPECT_EQ(ErrorOf("{} x").substr(0, 17), "line 1, column 4:");
}

TEST(FStrictJson, RefusesAKeyThatStandsTwiceWithItsPlace)
{
	EXPECT_EQ(ErrorOf(R"({"a":[0,{"b/c":1,"b/c":2}]})"), "/a/1/b~1c: this key stands twice in its object");
}

TEST(FStrictJson, AllowsOneKeyInSeveralObjects)
{
	json Value;
	std::string Error;
	EXPECT_TRUE(FStrictJson::Parse(R"([{"a":{"a":1}},{"a":2}])", Value, Error)) << Error;
}

TEST(FStrictJson, AllowsTheDeepestNesting)
{
	json Value;
	std::string Error;
	EXPECT_TRUE(FStrictJson::Parse(Nested(64), Value, Error)) << Error;
}

TEST(FStrictJson, RefusesOneLevelMoreWithItsPlace)
{
	std::string Place;
	for (int Level = 0; Level < 64; ++Level)
	{
		Place += "/0";
	}
	EXPECT_EQ(ErrorOf(Nested(65)), Place + ": nested deeper than 64 levels");
}

TEST(FStrictJson, RefusesAMillionLevelsWithoutRunningOutOfStack)
{
	EXPECT_NE(ErrorOf(std::string(1'000'000, '[')).find("nested deeper"), std::string::npos);
}

TEST(FStrictJson, RefusesIllFormedUtf8)
{
	EXPECT_NE(ErrorOf("\"\xC3(\"").find("ill-formed UTF-8"), std::string::npos);
}

TEST(FStrictJson, RefusesAnEscapedSurrogateWithoutItsPartner)
{
	EXPECT_NE(ErrorOf(R"("\uD83D")").find("surrogate"), std::string::npos);
}

TEST(FStrictJson, RefusesANumberBeyondAllRanges)
{
	EXPECT_NE(ErrorOf("[1e999]").find("number too large"), std::string::npos);
}

TEST(FStrictJson, KeepsErrorsFreeOfTheFilesOwnBytes)
{
	const std::string Error = ErrorOf("\"" + std::string(100'000, 'x') + "\xFF\"");
	EXPECT_LT(Error.size(), 200U);
	EXPECT_EQ(Error.find('\xFF'), std::string::npos);
}

TEST(FStrictJson, FormatsPlainContainersOnOneLine)
{
	const ordered_json Value = {{"view", {{"location", {1, 2, 3}}}}, {"name", "x"}};
	EXPECT_EQ(FStrictJson::Format(Value), "{\n\t\"view\": {\n\t\t\"location\": [1,2,3]\n\t},\n\t\"name\": \"x\"\n}\n");
}

TEST(FStrictJson, WritesTheShortestDigitsOfAFloat)
{
	EXPECT_EQ(FStrictJson::Number(0.1F).dump(), "0.1");
	EXPECT_EQ(FStrictJson::Number(-300.0F).dump(), "-300");
	EXPECT_EQ(FStrictJson::Number(16777216.0F).dump(), "16777216");
	EXPECT_EQ(FStrictJson::Number(1.1754944e-38F).dump(), "1.1754944e-38");
}

TEST(FStrictJson, KeepsTheSignOfMinusZero)
{
	EXPECT_TRUE(std::signbit(ThroughText(-0.0F)));
}

RC_GTEST_PROP(FStrictJsonProperties, EveryFiniteFloatComesBackBitForBit, ())
{
	const auto Bits = *rc::gen::arbitrary<uint32_t>();
	float Value = 0.0F;
	std::memcpy(&Value, &Bits, sizeof(Value));
	RC_PRE(std::isfinite(Value));
	const float Back = ThroughText(Value);
	RC_ASSERT(std::memcmp(&Value, &Back, sizeof(Value)) == 0);
}

RC_GTEST_PROP(
	FStrictJsonProperties, WhatIsFormattedParsesToTheSameValue, (std::vector<std::map<std::string, int>> Model))
{
	// Arbitrary bytes are rarely UTF-8; only what a file can carry is formatted.
	ordered_json Value = ordered_json::array();
	for (const auto& Element : Model)
	{
		ordered_json Object = ordered_json::object();
		for (const auto& [Key, Number] : Element)
		{
			Object[ordered_json(Key).dump(-1, ' ', true, json::error_handler_t::replace)] = Number;
		}
		Value.push_back(Object);
	}
	json Back;
	std::string Error;
	RC_ASSERT(FStrictJson::Parse(FStrictJson::Format(Value), Back, Error));
	RC_ASSERT(Back == json(Value));
}
