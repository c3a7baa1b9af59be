// Copyright Corvane. MIT License.
#include "Styling/CoreStyle.h"

#include "Styling/SlateStyle.h"

const ISlateStyle& FCoreStyle::Get()
{
	static const FSlateStyleSet CoreStyle("CoreStyle");
	return CoreStyle;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(
	const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
{
	FSlateFontInfo FontInfo;
	FontInfo.TypefaceFontName = InTypefaceFontName;
	FontInfo.Size = InSize;
	FontInfo.OutlineSettings = InOutlineSettings;
	return FontInfo;
}
