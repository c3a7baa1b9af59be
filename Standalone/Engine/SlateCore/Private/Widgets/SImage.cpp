// Copyright Corvane. MIT License.
#include "Widgets/Images/SImage.h"

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
}

FVector2D SImage::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FSlateBrush* Brush = GetImage();
	return Brush ? Brush->ImageSize : FVector2D();
}
