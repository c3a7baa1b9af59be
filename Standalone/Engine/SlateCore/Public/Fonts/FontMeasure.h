// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Internationalization/Text.h"
#include "Math/Vector2D.h"

/** Measures single lines of text, in slate units. */
class SLATECORE_API FSlateFontMeasure
{
public:
	virtual ~FSlateFontMeasure() = default;

	FVector2D Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const
	{
		return Measure(Text.ToString(), InFontInfo, FontScale);
	}
	FVector2D Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const
	{
		return Measure(Text, 0, Text.Len(), InFontInfo, false, FontScale);
	}
	/** The units from StartIndex up to EndIndex, that one not included. */
	virtual FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const = 0;
	/** The height of a line. */
	virtual uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const = 0;
};
