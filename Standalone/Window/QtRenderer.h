// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "WindowImages.h"

#include "Rendering/SlateRenderer.h"
#include "Standalone/RobotoFontMeasure.h"

/** Shows the widgets in the window. Texts are measured as without one, so that everything has the same place in both.
 */
class FQtRenderer final : public FSlateRenderer
{
public:
	FQtRenderer() : FSlateRenderer(MakeShared<FRobotoFontMeasure>()) {}

	void ReloadTextureResources() override { FWindowImages::Forget(); }
};
