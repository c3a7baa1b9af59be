// Copyright Corvane. MIT License.
#include "Unicode.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

namespace
{
	bool IsRefused(const std::string& Text)
	{
		std::u16string Ignored;
		return !FUnicode::ToUtf16(Text, Ignored);
	}

	bool IsRefused(const std::u16string& Text)
	{
		std::string Ignored;
		return !FUnicode::ToUtf8(Text, Ignored);
	}
}

TEST(FUnicode, ConvertsEveryLengthOfACodePoint)
{
	std::u16string Units;
	ASSERT_TRUE(FUnicode::ToUtf16("aé€😀", Units));
	EXPECT_EQ(Units, u"aé€\U0001F600");
	std::string Bytes;
	ASSERT_TRUE(FUnicode::ToUtf8(Units, Bytes));
	EXPECT_EQ(Bytes, "aé€😀");
}

TEST(FUnicode, ConvertsAnEmptyText)
{
	std::u16string Units = u"old";
	EXPECT_TRUE(FUnicode::ToUtf16("", Units));
	EXPECT_TRUE(Units.empty());
}

TEST(FUnicode, RefusesIllFormedUtf8)
{
	for (const char* Text : {"\xFF", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\x80"})
	{
		EXPECT_TRUE(IsRefused(std::string(Text)));
	}
}

TEST(FUnicode, RefusesASurrogateWithoutItsPartner)
{
	EXPECT_TRUE(IsRefused(std::u16string(1, char16_t(0xD83D))));
	EXPECT_TRUE(IsRefused(std::u16string{u'a', char16_t(0xDE00), u'b'}));
	EXPECT_TRUE(IsRefused(std::u16string{char16_t(0xDE00), char16_t(0xD83D)}));
}

RC_GTEST_PROP(FUnicodeProperties, UnitsConvertThereAndBackUnlessASurrogateIsAlone, ())
{
	const auto Unit = rc::gen::element<uint16_t>(0x41, 0x7FF, 0x800, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xFFFF);
	const auto Raw = *rc::gen::container<std::vector<uint16_t>>(Unit);
	bool bWellFormed = true;
	for (size_t Index = 0; Index < Raw.size(); ++Index)
	{
		const bool bHigh = Raw[Index] >= 0xD800 && Raw[Index] <= 0xDBFF;
		const bool bLow = Raw[Index] >= 0xDC00 && Raw[Index] <= 0xDFFF;
		const bool bPair = bHigh && Index + 1 < Raw.size() && Raw[Index + 1] >= 0xDC00 && Raw[Index + 1] <= 0xDFFF;
		bWellFormed = bWellFormed && !bLow && (!bHigh || bPair);
		Index += bPair ? 1 : 0;
	}
	const std::u16string Units(Raw.begin(), Raw.end());
	std::string Bytes;
	RC_ASSERT(FUnicode::ToUtf8(Units, Bytes) == bWellFormed);
	std::u16string Back;
	RC_ASSERT(!bWellFormed || (FUnicode::ToUtf16(Bytes, Back) && Back == Units));
}
