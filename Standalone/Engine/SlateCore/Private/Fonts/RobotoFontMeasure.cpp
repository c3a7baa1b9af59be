// Copyright Corvane. MIT License.
#include <algorithm>
#include <iterator>

#include "Standalone/RobotoFontMeasure.h"

#include "Math/UnrealMathUtility.h"

namespace
{
	/** A run of code points that share one advance. */
	struct FAdvanceRange
	{
		uint32 First;
		uint32 Last;
		int32 Advance;
	};

#include "Fonts/RobotoAdvances.inl"

	/** One typeface's table. */
	struct FFace
	{
		const FAdvanceRange* Begin;
		const FAdvanceRange* End;
		int32 MissingAdvance;
	};

	FFace FindFace(const FName& Typeface)
	{
		static const FName Italic("Italic");
		static const FName Bold("Bold");
		if (Typeface == Italic)
		{
			return FFace{std::begin(RobotoItalicAdvances), std::end(RobotoItalicAdvances), RobotoItalicMissingAdvance};
		}
		if (Typeface == Bold)
		{
			return FFace{std::begin(RobotoBoldAdvances), std::end(RobotoBoldAdvances), RobotoBoldMissingAdvance};
		}
		return FFace{std::begin(RobotoRegularAdvances), std::end(RobotoRegularAdvances), RobotoRegularMissingAdvance};
	}

	int32 FindAdvance(const FFace& Face, uint32 CodePoint)
	{
		const FAdvanceRange* Range = std::lower_bound(Face.Begin, Face.End, CodePoint,
			[](const FAdvanceRange& Candidate, uint32 Wanted) { return Candidate.Last < Wanted; });
		return Range != Face.End && Range->First <= CodePoint ? Range->Advance : Face.MissingAdvance;
	}

	/** The code point at Index, which moves past it. A lone surrogate is a code point that no font has. */
	uint32 NextCodePoint(const FString& Text, int32& Index, int32 EndIndex)
	{
		const uint32 Unit = Text[Index++];
		if ((Unit & 0xfc00) == 0xd800 && Index < EndIndex && (Text[Index] & 0xfc00) == 0xdc00)
		{
			return 0x10000 + ((Unit & 0x3ff) << 10) + (Text[Index++] & 0x3ffu);
		}
		return Unit;
	}

	/** A point is 1/72 inch, a slate unit 1/96; glyphs are drawn at whole sizes. */
	int32 GetPixelSize(const FSlateFontInfo& FontInfo, float FontScale)
	{
		return FMath::RoundToInt(static_cast<float>(FontInfo.Size) * FontScale * 96.0f / 72.0f);
	}
}

FVector2D FRobotoFontMeasure::Measure(const FString& Text, int32 StartIndex, int32 EndIndex,
	const FSlateFontInfo& InFontInfo, bool /*IncludeKerningWithPrecedingChar*/, float FontScale) const
{
	const FFace Face = FindFace(InFontInfo.TypefaceFontName);
	// Summed in font units, which are whole numbers: the parts of a line measure exactly what the line does.
	int64 Units = 0;
	for (int32 Index = StartIndex; Index < EndIndex;)
	{
		Units += FindAdvance(Face, NextCodePoint(Text, Index, EndIndex));
	}
	const double Width = static_cast<double>(Units) * GetPixelSize(InFontInfo, FontScale) / RobotoUnitsPerEm;
	return FVector2D(static_cast<float>(Width), GetMaxCharacterHeight(InFontInfo, FontScale));
}

uint16 FRobotoFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	const int32 Units = (RobotoAscent + RobotoDescent) * GetPixelSize(InFontInfo, FontScale);
	return static_cast<uint16>(FMath::RoundToInt(static_cast<float>(Units) / RobotoUnitsPerEm));
}
