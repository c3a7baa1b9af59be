// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Math/Vector2D.h"

/**
 * The size of a text of one or more lines, in the application's renderer. It remembers its last answer, since layouts
 * ask again and again about texts that do not change.
 */
class SLATE_API FTextMeasure
{
public:
	/**
	 * Lines end at line feeds and, where the text would become wider than WrapWidth, at the white space before; that
	 * white space takes no width then. A word that is wider than WrapWidth is broken between two characters, each line
	 * keeping at least one. An empty text is as high as one line.
	 */
	const FVector2D& Measure(const FString& Text, const FSlateFontInfo& Font, float WrapWidth);

private:
	bool bIsKnown = false;
	FString KnownText;
	FSlateFontInfo KnownFont;
	float KnownWrapWidth = 0.0f;
	FVector2D KnownSize;
};
