// Copyright Corvane. MIT License.
#include "Standalone/SlateNullRenderer.h"

#include "Standalone/RobotoFontMeasure.h"

FSlateNullRenderer::FSlateNullRenderer() : FSlateRenderer(MakeShared<FRobotoFontMeasure>()) {}
