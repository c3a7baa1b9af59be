// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/FontMeasure.h"

/**
 * Measures text by a table of Roboto's advance widths, so that no font file is needed and every machine gets the same
 * layout. Kerning and ligatures are left out; outlines add nothing.
 */
class SLATECORE_API FRobotoFontMeasure : public FSlateFontMeasure
{
public:
	using FSlateFontMeasure::Measure;
	virtual FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const override;
	virtual uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const override;
};
