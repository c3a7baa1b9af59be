// Copyright Corvane. MIT License.
#include "Standalone/TextMeasure.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Math/UnrealMathUtility.h"

namespace
{
	/** Breaks one text into lines as far as its size needs that. */
	class FLineBreaker
	{
	public:
		FLineBreaker(const FString& InText, const FSlateFontInfo& InFont, float InWrapWidth)
			: Text(InText),
			  Font(InFont),
			  WrapWidth(InWrapWidth),
			  FontMeasure(FSlateApplication::Get().GetRenderer()->GetFontMeasureService())
		{}

		FVector2D MeasureAll()
		{
			int32 ParagraphStart = 0;
			for (int32 Index = 0; Index <= Text.Len(); ++Index)
			{
				if (Index == Text.Len() || Text[Index] == TEXT('\n'))
				{
					AddParagraph(ParagraphStart, Index);
					ParagraphStart = Index + 1;
				}
			}
			return FVector2D(Widest, static_cast<float>(Lines * FontMeasure->GetMaxCharacterHeight(Font)));
		}

	private:
		float Width(int32 Start, int32 End) const { return FontMeasure->Measure(Text, Start, End, Font).X; }
		void AddLine(int32 Start, int32 End)
		{
			Widest = FMath::Max(Widest, Width(Start, End));
			++Lines;
		}
		int32 SkipWhitespace(int32 Index, int32 End, bool bWhitespace) const
		{
			while (Index < End && FText::IsWhitespace(Text[Index]) == bWhitespace)
			{
				++Index;
			}
			return Index;
		}

		void AddParagraph(int32 Start, int32 End)
		{
			int32 LineStart = Start;
			int32 LineEnd = Start;
			for (int32 WordStart = SkipWhitespace(Start, End, true); WordStart < End;)
			{
				const int32 WordEnd = SkipWhitespace(WordStart, End, false);
				if (LineEnd > LineStart && Width(LineStart, WordEnd) > WrapWidth)
				{
					AddLine(LineStart, LineEnd);
					LineStart = WordStart;
				}
				LineStart = BreakLongWord(LineStart, WordEnd);
				LineEnd = WordEnd;
				WordStart = SkipWhitespace(WordEnd, End, true);
			}
			// White space at the very end is part of the last line as long as it fits.
			AddLine(LineStart, Width(LineStart, End) > WrapWidth ? LineEnd : End);
		}
		/** Adds the full lines of what starts at LineStart and has no break before WordEnd. @return where the last line
		 * starts. */
		int32 BreakLongWord(int32 LineStart, int32 WordEnd)
		{
			while (Width(LineStart, WordEnd) > WrapWidth)
			{
				int32 Fitting = NextCharacter(LineStart);
				while (Fitting < WordEnd && Width(LineStart, NextCharacter(Fitting)) <= WrapWidth)
				{
					Fitting = NextCharacter(Fitting);
				}
				if (Fitting >= WordEnd)
				{
					break;
				}
				AddLine(LineStart, Fitting);
				LineStart = Fitting;
			}
			return LineStart;
		}
		int32 NextCharacter(int32 Index) const
		{
			const bool bPair =
				(Text[Index] & 0xfc00) == 0xd800 && Index + 1 < Text.Len() && (Text[Index + 1] & 0xfc00) == 0xdc00;
			return Index + (bPair ? 2 : 1);
		}

		const FString& Text;
		const FSlateFontInfo& Font;
		const float WrapWidth;
		const TSharedRef<FSlateFontMeasure> FontMeasure;
		float Widest = 0.0f;
		int32 Lines = 0;
	};
}

const FVector2D& FTextMeasure::Measure(const FString& Text, const FSlateFontInfo& Font, float WrapWidth)
{
	if (!bIsKnown || KnownWrapWidth != WrapWidth || !(KnownFont == Font) || !KnownText.Equals(Text))
	{
		KnownSize = FLineBreaker(Text, Font, WrapWidth).MeasureAll();
		KnownText = Text;
		KnownFont = Font;
		KnownWrapWidth = WrapWidth;
		bIsKnown = true;
	}
	return KnownSize;
}
