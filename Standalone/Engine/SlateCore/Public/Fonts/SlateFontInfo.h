// Copyright Corvane. MIT License.
#pragma once

#include "Math/Color.h"
#include "UObject/NameTypes.h"

/** The line around a font's letters. By default none. */
struct FFontOutlineSettings
{
	/** In slate units. */
	int32 OutlineSize = 0;
	FLinearColor OutlineColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);

	bool operator==(const FFontOutlineSettings& Other) const
	{
		return OutlineSize == Other.OutlineSize && OutlineColor == Other.OutlineColor;
	}
};

/** A font at a size. There is one font family, Roboto; FCoreStyle::GetDefaultFontStyle makes these. */
struct FSlateFontInfo
{
	/** "Regular", "Italic" or "Bold"; anything else is drawn as regular. */
	FName TypefaceFontName;
	/** In points at 96 dots an inch. */
	int32 Size = 0;
	FFontOutlineSettings OutlineSettings;

	bool operator==(const FSlateFontInfo& Other) const
	{
		return TypefaceFontName == Other.TypefaceFontName && Size == Other.Size &&
			OutlineSettings == Other.OutlineSettings;
	}
};
