// Copyright Corvane. MIT License.
#include "Widgets/Layout/SBox.h"

#include "Math/UnrealMathUtility.h"

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	ChildSlot[InArgs._Content.Widget];
}

FVector2D SBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	FVector2D Result = SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
	Result.X = ComputeChildWidthCap(0, Result.X);
	const FOptionalSize Height = HeightOverride.Get();
	Result.Y = Height.IsSet() ? Height.Get() : Result.Y;
	return Result;
}

float SBox::ComputeChildWidthCap(int32 /*ChildIndex*/, float OwnWidthCap) const
{
	const FOptionalSize Width = WidthOverride.Get();
	if (Width.IsSet())
	{
		return Width.Get();
	}
	const FOptionalSize MaxWidth = MaxDesiredWidth.Get();
	return MaxWidth.IsSet() ? FMath::Min(OwnWidthCap, MaxWidth.Get()) : OwnWidthCap;
}
