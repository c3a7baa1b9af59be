// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Fonts/FontMeasure.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	class FTextBlockTest : public FSlateFixture
	{
	public:
		static FVector2D MeasureLine(const TCHAR* Line, int32 Size)
		{
			return App().GetRenderer()->GetFontMeasureService()->Measure(
				FString(Line), FCoreStyle::GetDefaultFontStyle("Regular", Size));
		}
	};
}

TEST_F(FTextBlockTest, IsAsLargeAsItsTextInItsFont)
{
	const TSharedRef<STextBlock> Block =
		SNew(STextBlock).Text(FText::FromString(TEXT("Title"))).Font(FCoreStyle::GetDefaultFontStyle("Regular", 19));
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("Title"), 19));
}

TEST_F(FTextBlockTest, HasTheRegularFontAtSizeNineByDefault)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(FText::FromString(TEXT("Title")));
	EXPECT_TRUE(Block->GetFont() == FCoreStyle::GetDefaultFontStyle("Regular", 9));
}

TEST_F(FTextBlockTest, IsLeftAlignedInTheForegroundColourByDefault)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock);
	EXPECT_EQ(Block->GetJustification(), ETextJustify::Left);
	EXPECT_TRUE(Block->GetColorAndOpacity() == FSlateColor::UseForeground());
}

TEST_F(FTextBlockTest, ShowsWhatItWasSetTo)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Justification(ETextJustify::Center);
	Block->SetText(FText::FromString(TEXT("New")));
	Block->SetColorAndOpacity(FSlateColor(FLinearColor::Red));
	EXPECT_TRUE(Block->GetText().ToString().Equals(TEXT("New")));
	EXPECT_TRUE(Block->GetColorAndOpacity() == FSlateColor(FLinearColor::Red));
	EXPECT_EQ(Block->GetJustification(), ETextJustify::Center);
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("New"), 9));
}

TEST_F(FTextBlockTest, FollowsABoundText)
{
	FText Text = FText::FromString(TEXT("one"));
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text_Lambda([&Text]() { return Text; });
	Block->SlatePrepass(1.0f);
	Text = FText::FromString(TEXT("one hundred"));
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("one hundred"), 9));
}

TEST_F(FTextBlockTest, AddsItsMargin)
{
	const TSharedRef<STextBlock> Block =
		SNew(STextBlock).Text(FText::FromString(TEXT("x"))).Margin(FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("x"), 9) + FVector2D(4.0f, 6.0f));
}

TEST_F(FTextBlockTest, WrapsAtTheWidthOfTheBoxAroundIt)
{
	const FText Text = FText::FromString(TEXT("one two three four five six seven eight nine ten"));
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Text).AutoWrapText(true);
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(100)[Block];
	Box->SlatePrepass(1.0f);
	EXPECT_LE(Block->GetDesiredSize().X, 100.0f);
	EXPECT_GT(Block->GetDesiredSize().Y, 2.0f * MeasureLine(TEXT("x"), 9).Y);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(100.0f, Block->GetDesiredSize().Y));
}

TEST_F(FTextBlockTest, StaysOnOneLineUnlessToldToWrap)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(FText::FromString(TEXT("one two three four five six")));
	(SNew(SBox).WidthOverride(50)[Block])->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("one two three four five six"), 9));
}

TEST_F(FTextBlockTest, StaysOnOneLineWhereNothingLimitsItsWidth)
{
	const TSharedRef<STextBlock> Block =
		SNew(STextBlock).Text(FText::FromString(TEXT("one two three four five six"))).AutoWrapText(true);
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(Block->GetDesiredSize(), MeasureLine(TEXT("one two three four five six"), 9));
}
