// Copyright Corvane. MIT License.
#pragma once

#include "Rendering/SlateRenderer.h"

/** Shows nothing and measures text with FRobotoFontMeasure: the renderer where there is no window. */
class SLATECORE_API FSlateNullRenderer : public FSlateRenderer
{
public:
	FSlateNullRenderer();
};
