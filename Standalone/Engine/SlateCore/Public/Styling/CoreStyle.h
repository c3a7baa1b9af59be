// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"

/** The engine's own basic style. */
class SLATECORE_API FCoreStyle
{
public:
	static const ISlateStyle& Get();
	/** The engine's default font in a typeface ("Regular", "Italic", "Bold") and size. */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());

	/** The size of plain text. */
	enum
	{
		RegularTextSize = 9,
	};
};
