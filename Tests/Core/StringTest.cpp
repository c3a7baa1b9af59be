// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <clocale>
#include <limits>

#include "Utf8.h"

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

namespace
{
	/** Short strings of few letters, so that matches are frequent. */
	rc::Gen<std::string> GenLetters()
	{
		return rc::gen::container<std::string>(rc::gen::element('a', 'A', 'b', '/'));
	}

	std::string Lower(std::string Text)
	{
		for (char& Char : Text)
		{
			Char = Char >= 'A' && Char <= 'Z' ? static_cast<char>(Char - 'A' + 'a') : Char;
		}
		return Text;
	}

	int32 ToIndex(std::string::size_type Position)
	{
		return Position == std::string::npos ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Position);
	}
}

TEST(FString, EqualityIgnoresTheCaseOfAsciiLetters)
{
	EXPECT_TRUE(FString(TEXT("Stage_1")) == FString(TEXT("sTAGE_1")));
	EXPECT_FALSE(FString(TEXT("Stage")) != FString(TEXT("STAGE")));
	EXPECT_FALSE(FString(TEXT("Stage")) == FString(TEXT("Stage ")));
}

TEST(FString, EqualityTellsOtherLettersApart)
{
	EXPECT_FALSE(FString(TEXT("\u00E4")) == FString(TEXT("\u00C4")));
	EXPECT_FALSE(FString(TEXT("[")) == FString(TEXT("{"))) << "neighbours of the letters, 32 apart";
	EXPECT_FALSE(FString(TEXT("@")) == FString(TEXT("`")));
}

TEST(FString, EqualityIsTheSameInATurkishLocale)
{
	const std::string Old = std::setlocale(LC_ALL, nullptr);
	// Where the locale is missing, the rule must hold all the same.
	const char* const Turkish = std::setlocale(LC_ALL, "tr_TR.UTF-8");
	RecordProperty("Locale", Turkish != nullptr ? Turkish : Old.c_str());
	EXPECT_TRUE(FString(TEXT("TITLE")) == FString(TEXT("title")));
	EXPECT_FALSE(FString(TEXT("I")) == FString(TEXT("\u0131")));
	EXPECT_FALSE(FString(TEXT("i")) == FString(TEXT("\u0130")));
	EXPECT_EQ(Utf8(FString(TEXT("I")).ToLower()), "i");
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%.1f"), 1.5)), "1.5");
	std::setlocale(LC_ALL, Old.c_str());
}

TEST(FString, EqualsIsExactUnlessAskedOtherwise)
{
	EXPECT_FALSE(FString(TEXT("Stage")).Equals(TEXT("stage")));
	EXPECT_TRUE(FString(TEXT("Stage")).Equals(TEXT("Stage")));
	EXPECT_TRUE(FString(TEXT("Stage")).Equals(TEXT("stage"), ESearchCase::IgnoreCase));
}

TEST(FString, CompareIsExactUnlessAskedOtherwise)
{
	EXPECT_LT(FString(TEXT("B")).Compare(TEXT("a")), 0);
	EXPECT_GT(FString(TEXT("B")).Compare(TEXT("a"), ESearchCase::IgnoreCase), 0);
	EXPECT_EQ(FString(TEXT("A")).Compare(TEXT("a"), ESearchCase::IgnoreCase), 0);
}

TEST(FString, OrderIgnoresTheCaseOfAsciiLetters)
{
	EXPECT_TRUE(FString(TEXT("a")) < FString(TEXT("B")));
	EXPECT_FALSE(FString(TEXT("a")) < FString(TEXT("A")));
}

TEST(FString, ArraysAndMapsFindWithoutRegardToCase)
{
	TArray<FString> Names;
	Names.Add(TEXT("Stage"));
	EXPECT_TRUE(Names.Contains(TEXT("STAGE")));
	EXPECT_EQ(Names.AddUnique(TEXT("stage")), 0);
	TMap<FString, int32> Numbers;
	Numbers.Add(TEXT("Stage"), 7);
	ASSERT_NE(Numbers.Find(TEXT("sTaGe")), nullptr);
	EXPECT_EQ(*Numbers.Find(TEXT("sTaGe")), 7);
}

TEST(FString, SlashJoinsWithExactlyOneSlash)
{
	EXPECT_EQ(Utf8(FString(TEXT("a")) / TEXT("b")), "a/b");
	EXPECT_EQ(Utf8(FString(TEXT("a/")) / TEXT("b")), "a/b");
	EXPECT_EQ(Utf8(FString(TEXT("a\\")) / TEXT("b")), "a\\b");
	EXPECT_EQ(Utf8(FString(TEXT("a")) / TEXT("/b")), "a/b");
	EXPECT_EQ(Utf8(FString(TEXT("a/")) / TEXT("/b")), "a/b");
	EXPECT_EQ(Utf8(FString() / TEXT("b")), "b");
}

TEST(FString, IsMadeFromUtf8)
{
	EXPECT_TRUE(FString("\xC3\xA4\xF0\x9F\x98\x80").Equals(TEXT("\u00E4\U0001F600")));
	EXPECT_TRUE(FString(static_cast<const ANSICHAR*>(nullptr)).IsEmpty());
	EXPECT_TRUE(FString(static_cast<const TCHAR*>(nullptr)).IsEmpty());
}

TEST(FString, LoneSurrogateBecomesTheReplacementCharacterInUtf8)
{
	const TCHAR Units[] = {TEXT('a'), 0xD83D, TEXT('b'), 0xDE00, 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(Units),
		"a\xEF\xBF\xBD"
		"b\xEF\xBF\xBD");
	EXPECT_EQ(FString(Units).Len(), 4) << "the string itself keeps its units";
}

TEST(FString, IllFormedUtf8BecomesTheReplacementCharacter)
{
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("a\xFF\xC3")).Equals(TEXT("a\uFFFD\uFFFD")));
}

TEST(FString, CutsWithoutLeavingItsBounds)
{
	const FString Text(TEXT("abcde"));
	EXPECT_EQ(Utf8(Text.Left(2)), "ab");
	EXPECT_EQ(Utf8(Text.Left(9)), "abcde");
	EXPECT_EQ(Utf8(Text.Left(-1)), "");
	EXPECT_EQ(Utf8(Text.Right(2)), "de");
	EXPECT_EQ(Utf8(Text.Right(9)), "abcde");
	EXPECT_EQ(Utf8(Text.LeftChop(2)), "abc");
	EXPECT_EQ(Utf8(Text.RightChop(2)), "cde");
	EXPECT_EQ(Utf8(Text.RightChop(9)), "");
	EXPECT_EQ(Utf8(Text.Mid(1, 3)), "bcd");
	EXPECT_EQ(Utf8(Text.Mid(3)), "de");
	EXPECT_EQ(Utf8(Text.Mid(9)), "");
}

TEST(FString, FindsSingleCharactersExactly)
{
	int32 Index = 0;
	EXPECT_TRUE(FString(TEXT("a/b/c")).FindLastChar(TEXT('/'), Index));
	EXPECT_EQ(Index, 3);
	EXPECT_TRUE(FString(TEXT("a/b/c")).FindChar(TEXT('/'), Index));
	EXPECT_EQ(Index, 1);
	EXPECT_FALSE(FString(TEXT("a")).FindChar(TEXT('A'), Index));
	EXPECT_EQ(Index, INDEX_NONE);
}

TEST(FString, SearchesIgnoreCaseUnlessAskedOtherwise)
{
	const FString Text(TEXT("Stage One"));
	EXPECT_EQ(Text.Find(TEXT("ONE")), 6);
	EXPECT_EQ(Text.Find(TEXT("ONE"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_TRUE(Text.Contains(TEXT("age o")));
	EXPECT_FALSE(Text.Contains(TEXT("age o"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.StartsWith(TEXT("sTage")));
	EXPECT_FALSE(Text.StartsWith(TEXT("sTage"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT("oNE")));
	EXPECT_FALSE(Text.EndsWith(TEXT("oNE"), ESearchCase::CaseSensitive));
}

TEST(FString, FindsTheLastMatchFromTheEnd)
{
	EXPECT_EQ(FString(TEXT("abcabc")).Find(TEXT("bc"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 4);
	EXPECT_EQ(FString(TEXT("abcabc")).Find(TEXT("bc"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 4), 1);
}

TEST(FString, FormatsTheEnginesConversions)
{
	EXPECT_EQ(
		Utf8(FString::Printf(TEXT("%s|%d|%i|%u|%x|%%|%c"), TEXT("a"), -1, 2, 3u, 255, TEXT('z'))), "a|-1|2|3|ff|%|z");
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%03d|%.2f|%lld|%hs"), 7, 1.5, 1ll << 40, "narrow")),
		"007|1.50|1099511627776|narrow");
}

TEST(FString, FormatsTheLargestNumberWhole)
{
	EXPECT_EQ(FString::Printf(TEXT("%.1f"), std::numeric_limits<double>::max()).Len(), 311);
}

TEST(FString, IndexOutOfRangeIsFatal)
{
	const FString Text(TEXT("ab"));
	EXPECT_EXIT(static_cast<void>(Text[2]), ::testing::ExitedWithCode(3), "Assertion failed: .*out of bounds");
	EXPECT_EXIT(static_cast<void>(Text[-1]), ::testing::ExitedWithCode(3), "Assertion failed: ");
}

RC_GTEST_PROP(FStringProperty, FindAgreesWithTheStandardSearch, ())
{
	const std::string Text = *GenLetters();
	const std::string Part = *rc::gen::nonEmpty(GenLetters());
	const FString String = FromUtf8(Text);
	RC_ASSERT(String.Find(FromUtf8(Part), ESearchCase::CaseSensitive) == ToIndex(Text.find(Part)));
	RC_ASSERT(String.Find(FromUtf8(Part)) == ToIndex(Lower(Text).find(Lower(Part))));
	RC_ASSERT(String.Find(FromUtf8(Part), ESearchCase::IgnoreCase, ESearchDir::FromEnd) ==
		ToIndex(Lower(Text).rfind(Lower(Part))));
}

RC_GTEST_PROP(FStringProperty, ReplaceLeavesNothingOfWhatItReplaces, ())
{
	const FString Text = FromUtf8(*GenLetters());
	const FString Part = FromUtf8(*rc::gen::nonEmpty(GenLetters()));
	const FString Replaced = Text.Replace(*Part, TEXT("-"));
	RC_ASSERT(!Replaced.Contains(Part));
	int32 NumDashes = 0;
	for (int32 Index = 0; Index < Replaced.Len(); ++Index)
	{
		NumDashes += Replaced[Index] == TEXT('-') ? 1 : 0;
	}
	RC_ASSERT(Replaced.Len() - NumDashes == Text.Len() - NumDashes * Part.Len());
}

RC_GTEST_PROP(FStringProperty, ReplaceByItselfChangesNothing, ())
{
	const FString Text = FromUtf8(*GenLetters());
	const FString Part = FromUtf8(*rc::gen::nonEmpty(GenLetters()));
	RC_ASSERT(Text.Replace(*Part, *Part, ESearchCase::CaseSensitive).Equals(Text));
}

RC_GTEST_PROP(FStringProperty, EqualStringsHaveEqualHashes, ())
{
	const std::string Text = *GenLetters();
	RC_ASSERT(FromUtf8(Text) == FromUtf8(Lower(Text)));
	RC_ASSERT(GetTypeHash(FromUtf8(Text)) == GetTypeHash(FromUtf8(Lower(Text))));
}

RC_GTEST_PROP(FStringProperty, WellFormedTextSurvivesTheWayToUtf8AndBack, (std::vector<std::uint32_t> Numbers))
{
	std::u16string Units;
	for (const std::uint32_t Number : Numbers)
	{
		const std::uint32_t CodePoint = 1 + Number % 0x10FFFE;
		if (CodePoint >= 0x10000)
		{
			Units.push_back(static_cast<char16_t>(0xD800 + ((CodePoint - 0x10000) >> 10)));
			Units.push_back(static_cast<char16_t>(0xDC00 + ((CodePoint - 0x10000) & 0x3FF)));
		}
		else if (CodePoint < 0xD800 || CodePoint > 0xDFFF)
		{
			Units.push_back(static_cast<char16_t>(CodePoint));
		}
	}
	const FString Text(Units.c_str());
	RC_ASSERT(FromUtf8(Utf8(Text)).Equals(Text));
}
