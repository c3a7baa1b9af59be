// Copyright Corvane. MIT License.
#pragma once

#include "Math/Vector2D.h"

/** Where a window's or widget's origin stands on the desktop. Everything is laid out at scale 1 here. */
class FSlateLayoutTransform
{
public:
	explicit FSlateLayoutTransform(const FVector2D& InTranslation = FVector2D()) : Translation(InTranslation) {}

	const FVector2D& GetTranslation() const { return Translation; }

private:
	FVector2D Translation;
};
