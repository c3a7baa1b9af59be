// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/FontMeasure.h"
#include "Templates/SharedPointer.h"

/** What shows the widgets. The application is made with one. */
class SLATECORE_API FSlateRenderer
{
public:
	explicit FSlateRenderer(const TSharedRef<FSlateFontMeasure>& InFontMeasure) : FontMeasure(InFontMeasure) {}
	virtual ~FSlateRenderer() = default;

	/** Reads all images of all style sets anew. */
	virtual void ReloadTextureResources() {}

	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const { return FontMeasure; }

private:
	TSharedRef<FSlateFontMeasure> FontMeasure;
};
