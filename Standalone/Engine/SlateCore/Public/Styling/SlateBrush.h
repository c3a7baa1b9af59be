// Copyright Corvane. MIT License.
#pragma once

#include "Layout/Margin.h"
#include "Styling/SlateColor.h"
#include "UObject/NameTypes.h"

/** How a brush fills an area. */
namespace ESlateBrushDrawType
{
	enum Type
	{
		NoDrawType,
		Box,
		Border,
		Image,
	};
}

/** In which directions a brush's image repeats. */
namespace ESlateBrushTileType
{
	enum Type
	{
		NoTile,
		Horizontal,
		Vertical,
		Both,
	};
}

/** In which directions a brush's image is mirrored. */
namespace ESlateBrushMirrorType
{
	enum Type
	{
		NoMirror,
		Horizontal,
		Vertical,
		Both,
	};
}

/** What a brush's image is made of. */
namespace ESlateBrushImageType
{
	enum Type
	{
		NoImage,
		FullColor,
		Linear,
	};
}

/** How an area is painted. By default an image of 32 × 32 without a file. */
struct SLATECORE_API FSlateBrush
{
	virtual ~FSlateBrush() = default;

	/** The image's file, or none. */
	FName GetResourceName() const { return ResourceName; }

	FVector2D ImageSize = FVector2D(32.0f, 32.0f);
	FMargin Margin;
	FSlateColor TintColor = FSlateColor(FLinearColor::White);
	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushMirrorType::Type Mirroring = ESlateBrushMirrorType::NoMirror;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;

protected:
	FName ResourceName;
};
