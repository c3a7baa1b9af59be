// Copyright Corvane. MIT License.
#include "Styling/SlateBrush.h"

#include "Brushes/SlateImageBrush.h"
#include "Styling/StyleDefaults.h"

FSlateImageBrush::FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FLinearColor& InTint,
	ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType)
{
	ResourceName = FName(*InImageName);
	ImageSize = InImageSize;
	TintColor = FSlateColor(InTint);
	Tiling = InTiling;
	ImageType = InImageType;
}

const FSlateBrush* FStyleDefaults::GetNoBrush()
{
	struct FNoBrush : public FSlateBrush
	{
		FNoBrush()
		{
			DrawAs = ESlateBrushDrawType::NoDrawType;
			ImageSize = FVector2D();
		}
	};
	static const FNoBrush NoBrush;
	return &NoBrush;
}
