// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Standalone/RobotoFontMeasure.h"
#include "Standalone/SlateNullRenderer.h"
#include "Styling/CoreStyle.h"

namespace
{
	const FRobotoFontMeasure GMeasure;

	FSlateFontInfo Regular(int32 Size)
	{
		return FCoreStyle::GetDefaultFontStyle("Regular", Size);
	}

	FString ToText(const std::u16string& Units)
	{
		return FString(static_cast<int32>(Units.size()), Units.data());
	}
}

TEST(FRobotoFontMeasure, SumsTheAdvancesAtTheSizeInPixels)
{
	// Size 12 is 16 pixels; A is 1336 and a digit 1151 of the em's 2048 units.
	EXPECT_FLOAT_EQ(GMeasure.Measure(FString(TEXT("A00")), Regular(12)).X, (1336 + 2 * 1151) * 16 / 2048.0f);
}

TEST(FRobotoFontMeasure, RoundsTheSizeToWholePixels)
{
	// Sizes 10 and 8 are 13.33 and 10.67 pixels.
	EXPECT_FLOAT_EQ(GMeasure.Measure(FString(TEXT("0")), Regular(10)).X, 1151 * 13 / 2048.0f);
	EXPECT_FLOAT_EQ(GMeasure.Measure(FString(TEXT("0")), Regular(8)).X, 1151 * 11 / 2048.0f);
}

TEST(FRobotoFontMeasure, MeasuresTheNameLabelAsTheFontFileDoes)
{
	// Drawn from the font file without hinting it is 107.203 wide, kerning included.
	EXPECT_NEAR(GMeasure.Measure(FString(TEXT("Cinestream Name:")), Regular(10)).X, 107.2f, 0.3f);
}

TEST(FRobotoFontMeasure, TellsTheTypefacesApart)
{
	const FString Text(TEXT("Warning"));
	const float Width = GMeasure.Measure(Text, Regular(10)).X;
	EXPECT_NE(GMeasure.Measure(Text, FCoreStyle::GetDefaultFontStyle("Bold", 10)).X, Width);
	EXPECT_NE(GMeasure.Measure(Text, FCoreStyle::GetDefaultFontStyle("Italic", 10)).X, Width);
	EXPECT_EQ(GMeasure.Measure(Text, FCoreStyle::GetDefaultFontStyle("Unknown", 10)).X, Width);
}

TEST(FRobotoFontMeasure, HasALineHeightOfAscentAndDescent)
{
	// 2400 of 2048 units at 13 pixels are 15.2.
	EXPECT_EQ(GMeasure.GetMaxCharacterHeight(Regular(10)), 15);
	EXPECT_EQ(GMeasure.Measure(FString(), Regular(10)), FVector2D(0.0f, 15.0f));
}

TEST(FRobotoFontMeasure, TakesAPairOfSurrogatesAsOneMissingCharacter)
{
	const float Missing = 908 * 16 / 2048.0f;
	EXPECT_FLOAT_EQ(GMeasure.Measure(FString(TEXT("\U0001F3A5")), Regular(12)).X, Missing);
	const TCHAR Lone = 0xd83c;
	EXPECT_FLOAT_EQ(GMeasure.Measure(FString(1, &Lone), Regular(12)).X, Missing);
}

TEST(FRobotoFontMeasure, MeasuresAPartOfAText)
{
	const FString Text(TEXT("A00B"));
	EXPECT_EQ(GMeasure.Measure(Text, 1, 3, Regular(12)), GMeasure.Measure(FString(TEXT("00")), Regular(12)));
}

TEST(FRobotoFontMeasure, ScalesTheSizeBeforeItIsRounded)
{
	EXPECT_EQ(
		GMeasure.Measure(FString(TEXT("0")), Regular(6), 2.0f), GMeasure.Measure(FString(TEXT("0")), Regular(12)));
}

TEST(FSlateNullRenderer, MeasuresTextLikeRoboto)
{
	const FText Text = FText::FromString(TEXT("Title"));
	EXPECT_EQ(FSlateNullRenderer().GetFontMeasureService()->Measure(Text, Regular(19)),
		GMeasure.Measure(FString(TEXT("Title")), Regular(19)));
}

RC_GTEST_PROP(FRobotoFontMeasure, GivesAWholeTheWidthOfItsParts, (const std::string& Head, const std::string& Tail))
{
	const std::u16string Front(Head.begin(), Head.end());
	const std::u16string Back(Tail.begin(), Tail.end());
	const FSlateFontInfo Font = Regular(*rc::gen::inRange(1, 40));
	const float Parts = GMeasure.Measure(ToText(Front), Font).X + GMeasure.Measure(ToText(Back), Font).X;
	RC_ASSERT(std::abs(GMeasure.Measure(ToText(Front + Back), Font).X - Parts) <= 0.001f * (1.0f + Parts));
}
