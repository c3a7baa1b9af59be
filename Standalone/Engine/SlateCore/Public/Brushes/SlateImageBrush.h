// Copyright Corvane. MIT License.
#pragma once

#include "Styling/SlateBrush.h"

/** A brush that shows an image file. Whether the file exists is the renderer's concern. */
struct SLATECORE_API FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize,
		const FLinearColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f),
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor);
};
