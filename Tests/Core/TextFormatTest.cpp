// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Utf8.h"

#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "Standalone/TextFormatInspector.h"

namespace
{
	FText MakeText(const std::string& Bytes)
	{
		return FText::FromString(FromUtf8(Bytes));
	}

	/** What a pattern becomes with the values "one" and "two". */
	std::string Fill(const std::string& Pattern)
	{
		return Utf8(FText::Format(MakeText(Pattern), MakeText("one"), MakeText("two")).ToString());
	}

	/** A text of what means something to a format, and a little else. */
	rc::Gen<std::string> GenPattern()
	{
		return rc::gen::container<std::string>(rc::gen::element('{', '}', '`', '0', '1', '7', 'a', ' '));
	}

	std::string Escape(const std::string& Text)
	{
		std::string Result;
		for (const char Char : Text)
		{
			Result += Char == '{' || Char == '}' || Char == '`' ? std::string("`") + Char : std::string(1, Char);
		}
		return Result;
	}
}

TEST(FTextFormat, PutsValuesInPlaceOfTheirTokens)
{
	EXPECT_EQ(Fill("{0} and {1}"), "one and two");
	EXPECT_EQ(Fill("{1}{0}{1}"), "twoonetwo");
	EXPECT_EQ(Fill("no token"), "no token");
	EXPECT_EQ(Fill(""), "");
}

TEST(FTextFormat, LeavesATokenWithoutValueInPlace)
{
	EXPECT_EQ(Fill("{0} {2}"), "one {2}");
	EXPECT_EQ(Fill("{18446744073709551616}"), "{18446744073709551616}") << "would be 0 if it overflowed";
	EXPECT_EQ(Fill("{Name}"), "{Name}");
	EXPECT_EQ(Fill("{}"), "{}");
	EXPECT_EQ(Fill("{-1}"), "{-1}");
}

TEST(FTextFormat, TakesAnUnmatchedBraceLiterally)
{
	EXPECT_EQ(Fill("{"), "{");
	EXPECT_EQ(Fill("}"), "}");
	EXPECT_EQ(Fill("{0"), "{0");
	EXPECT_EQ(Fill("0}"), "0}");
	EXPECT_EQ(Fill("{{0}"), "{one");
	EXPECT_EQ(Fill("{0}}"), "one}");
}

TEST(FTextFormat, BackTickEscapesTheNextSpecialCharacter)
{
	EXPECT_EQ(Fill("`{0`}"), "{0}");
	EXPECT_EQ(Fill("``{0}"), "`one");
	EXPECT_EQ(Fill("`{{0}`}"), "{one}");
}

TEST(FTextFormat, BackTickBeforeAnythingElseStays)
{
	EXPECT_EQ(Fill("`a`"), "`a`");
}

TEST(FTextFormat, InsertsValuesWordForWord)
{
	const FText Text = FText::Format(MakeText("<{0}>"), MakeText("{1} `{ {0}"), MakeText("two"));
	EXPECT_EQ(Utf8(Text.ToString()), "<{1} `{ {0}>");
}

TEST(FTextFormat, TakesAListOfValues)
{
	FFormatOrderedArguments Arguments;
	Arguments.Add(MakeText("a"));
	Arguments.Add(MakeText("b"));
	EXPECT_EQ(Utf8(FText::Format(MakeText("{1}{0}"), Arguments).ToString()), "ba");
}

TEST(FTextFormat, TakesAPatternFromAString)
{
	EXPECT_EQ(Utf8(FText::Format(FTextFormat::FromString(TEXT("<{0}>")), MakeText("x")).ToString()), "<x>");
}

TEST(FTextFormat, ResultHasNoIdentityOfItsOwn)
{
	const FText Text = FText::Format(NSLOCTEXT("TextFormatTest", "Title", "Hello {0}"), MakeText("you"));
	EXPECT_FALSE(FTextInspector::GetNamespace(Text).IsSet());
	EXPECT_FALSE(FTextInspector::GetKey(Text).IsSet());
	EXPECT_EQ(Utf8(*FTextInspector::GetSourceString(Text)), "Hello you");
}

TEST(FTextFormat, ResultKeepsPatternAndValues)
{
	const FText Pattern = NSLOCTEXT("TextFormatTest", "Title", "Hello {0}");
	const FText Text = FText::Format(Pattern, NSLOCTEXT("TextFormatTest", "You", "you"));
	ASSERT_NE(FTextFormatInspector::GetPattern(Text), nullptr);
	EXPECT_TRUE(FTextFormatInspector::GetPattern(Text)->IdenticalTo(Pattern));
	ASSERT_EQ(FTextFormatInspector::GetArguments(Text)->Num(), 1);
	EXPECT_EQ(Utf8(FTextInspector::GetKey((*FTextFormatInspector::GetArguments(Text))[0]).GetValue()), "You");
}

TEST(FTextFormat, OtherTextsHaveNoPattern)
{
	EXPECT_EQ(FTextFormatInspector::GetPattern(FText()), nullptr);
	EXPECT_EQ(FTextFormatInspector::GetPattern(MakeText("{0}")), nullptr);
	EXPECT_EQ(FTextFormatInspector::GetArguments(NSLOCTEXT("TextFormatTest", "You", "you")), nullptr);
}

RC_GTEST_PROP(FTextFormatProperty, AnEscapedPatternComesOutAsItWas, ())
{
	const std::string Text = *GenPattern();
	RC_ASSERT(Fill(Escape(Text)) == Text);
}

RC_GTEST_PROP(FTextFormatProperty, AValueComesOutAsItIsBetweenWhatSurroundsIt, ())
{
	const std::string Before = *GenPattern();
	const std::string Value = *GenPattern();
	const std::string After = *GenPattern();
	const FText Text = FText::Format(MakeText(Escape(Before) + "{0}" + Escape(After)), MakeText(Value));
	RC_ASSERT(Utf8(Text.ToString()) == Before + Value + After);
}

RC_GTEST_PROP(FTextFormatProperty, APatternWithoutValuesLosesOnlyItsEscapes, ())
{
	const std::string Pattern = *GenPattern();
	const FText Text = FText::Format(MakeText(Pattern), FFormatOrderedArguments());
	std::string Expected;
	for (std::size_t Index = 0; Index < Pattern.size(); ++Index)
	{
		const bool bEscape = Pattern[Index] == '`' && Index + 1 < Pattern.size() &&
			std::string("{}`").find(Pattern[Index + 1]) != std::string::npos;
		Expected += Pattern[bEscape ? ++Index : Index];
	}
	RC_ASSERT(Utf8(Text.ToString()) == Expected);
}
