// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include <limits>

#include "Fonts/FontMeasure.h"
#include "Standalone/TextMeasure.h"
#include "Styling/CoreStyle.h"

namespace
{
	constexpr float Unlimited = std::numeric_limits<float>::infinity();

	/** Measures every unit as ten wide and every line as twenty high, and counts how often it is asked. */
	class FTenWideMeasure : public FSlateFontMeasure
	{
	public:
		virtual FVector2D Measure(const FString& /*Text*/, int32 StartIndex, int32 EndIndex,
			const FSlateFontInfo& /*InFontInfo*/, bool /*bKerning*/, float /*FontScale*/) const override
		{
			++Calls;
			return FVector2D(static_cast<float>(EndIndex - StartIndex) * 10.0f, 20.0f);
		}
		virtual uint16 GetMaxCharacterHeight(const FSlateFontInfo& /*InFontInfo*/, float /*FontScale*/) const override
		{
			return 20;
		}

		mutable int32 Calls = 0;
	};

	class FTextMeasureTest : public FSlateFixture
	{
	public:
		FTextMeasureTest() { App().InitializeRenderer(MakeShared<FSlateRenderer>(FontMeasure)); }
		FVector2D Measure(const TCHAR* Text, float WrapWidth)
		{
			return TextMeasure.Measure(FString(Text), FCoreStyle::GetDefaultFontStyle("Regular", 10), WrapWidth);
		}

		TSharedRef<FTenWideMeasure> FontMeasure = MakeShared<FTenWideMeasure>();
		FTextMeasure TextMeasure;
	};

}

TEST_F(FTextMeasureTest, MeasuresOneLine)
{
	EXPECT_EQ(Measure(TEXT("ab cd"), Unlimited), FVector2D(50.0f, 20.0f));
}

TEST_F(FTextMeasureTest, GivesAnEmptyTextTheHeightOfALine)
{
	EXPECT_EQ(Measure(TEXT(""), 100.0f), FVector2D(0.0f, 20.0f));
}

TEST_F(FTextMeasureTest, EndsLinesAtLineFeeds)
{
	EXPECT_EQ(Measure(TEXT("abc\n\nab"), Unlimited), FVector2D(30.0f, 60.0f));
}

TEST_F(FTextMeasureTest, WrapsBeforeTheWordThatDoesNotFit)
{
	// "ab cd" is fifty, with "ef" it would be eighty.
	EXPECT_EQ(Measure(TEXT("ab cd ef"), 79.0f), FVector2D(50.0f, 40.0f));
	EXPECT_EQ(Measure(TEXT("ab cd ef"), 80.0f), FVector2D(80.0f, 20.0f));
}

TEST_F(FTextMeasureTest, LeavesOutTheWhiteSpaceAtWhichItWraps)
{
	EXPECT_EQ(Measure(TEXT("abc     def"), 40.0f), FVector2D(30.0f, 40.0f));
}

TEST_F(FTextMeasureTest, BreaksAWordThatIsWiderThanALine)
{
	EXPECT_EQ(Measure(TEXT("abcdefgh"), 30.0f), FVector2D(30.0f, 60.0f));
}

TEST_F(FTextMeasureTest, GoesOnBehindTheRestOfABrokenWord)
{
	// abc · de f
	EXPECT_EQ(Measure(TEXT("abcde f"), 40.0f), FVector2D(40.0f, 40.0f));
}

TEST_F(FTextMeasureTest, PutsOneCharacterOnALineWhereNotEvenOneFits)
{
	EXPECT_EQ(Measure(TEXT("abc"), 5.0f), FVector2D(10.0f, 60.0f));
}

TEST_F(FTextMeasureTest, NeverBreaksAPairOfSurrogates)
{
	EXPECT_EQ(Measure(TEXT("\U0001F3A5\U0001F3A5"), 10.0f), FVector2D(20.0f, 40.0f));
}

TEST_F(FTextMeasureTest, AsksTheFontAgainOnlyWhenSomethingChanged)
{
	Measure(TEXT("ab cd"), 100.0f);
	const int32 Calls = FontMeasure->Calls;
	Measure(TEXT("ab cd"), 100.0f);
	EXPECT_EQ(FontMeasure->Calls, Calls);
	Measure(TEXT("AB cd"), 100.0f);
	EXPECT_GT(FontMeasure->Calls, Calls);
}

TEST_F(FTextMeasureTest, AnswersForTheNewWidthAndFont)
{
	EXPECT_EQ(Measure(TEXT("ab cd"), 100.0f), FVector2D(50.0f, 20.0f));
	EXPECT_EQ(Measure(TEXT("ab cd"), 40.0f), FVector2D(20.0f, 40.0f));
	const int32 Calls = FontMeasure->Calls;
	TextMeasure.Measure(FString(TEXT("ab cd")), FCoreStyle::GetDefaultFontStyle("Bold", 10), 40.0f);
	EXPECT_GT(FontMeasure->Calls, Calls);
}

TEST_F(FTextMeasureTest, DoesNotAskTheFontOutOfProportionForALongText)
{
	const FString Word(TEXT("word "));
	FString Text;
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		Text += Word;
	}
	TextMeasure.Measure(Text, FCoreStyle::GetDefaultFontStyle("Regular", 10), 300.0f);
	EXPECT_LT(FontMeasure->Calls, 60000);
}

RC_GTEST_FIXTURE_PROP(FTextMeasureTest, TakesAtMostTheWrapWidthAndLosesNoCharacter, ())
{
	const auto Letters = *rc::gen::container<std::u16string>(rc::gen::element(u'a', u'b', u' ', u'\n'));
	const int Columns = *rc::gen::inRange(1, 12);
	const FString Text(static_cast<int32>(Letters.size()), Letters.data());
	const FVector2D Size = TextMeasure.Measure(Text, FSlateFontInfo(), static_cast<float>(Columns) * 10.0f);
	RC_ASSERT(Size.X <= static_cast<float>(Columns) * 10.0f);
	int Visible = 0;
	for (const char16_t Letter : Letters)
	{
		Visible += Letter == u'a' || Letter == u'b' ? 1 : 0;
	}
	const int Lines = static_cast<int>(Size.Y / 20.0f);
	RC_ASSERT(Lines * Columns >= Visible);
	RC_ASSERT(Lines >= 1);
}

RC_GTEST_FIXTURE_PROP(FTextMeasureTest, WrapsAlikeAtTheWidthOfItsWidestLine, ())
{
	const auto Letters = *rc::gen::container<std::u16string>(rc::gen::element(u'a', u'b', u' ', u' '));
	const FString Text(static_cast<int32>(Letters.size()), Letters.data());
	const FVector2D Size =
		TextMeasure.Measure(Text, FSlateFontInfo(), static_cast<float>(*rc::gen::inRange(1, 12)) * 10.0f);
	RC_PRE(Size.X > 0.0f);
	const float Widest = Size.X;
	RC_ASSERT(TextMeasure.Measure(Text, FSlateFontInfo(), Widest) == Size);
}
