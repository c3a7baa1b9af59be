// Copyright Corvane. MIT License.
#include "Widgets/SOverlay.h"

#include "Layout/LayoutUtils.h"
#include "Math/UnrealMathUtility.h"

FChildren* SOverlay::GetChildren()
{
	return &Children;
}

FVector2D SOverlay::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	FVector2D Result;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D SlotSize = GetSlotDesiredSize(Children[Index]);
		Result = FVector2D(FMath::Max(Result.X, SlotSize.X), FMath::Max(Result.Y, SlotSize.Y));
	}
	return Result;
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Children[Index]);
	}
}
