// Copyright Corvane. MIT License.
#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"
#include "Widgets/SWidget.h"

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	FGeometry Result;
	Result.AbsolutePosition = LayoutTransform.GetTranslation();
	Result.Size = InLocalSize;
	return Result;
}

FArrangedWidget FGeometry::MakeChild(
	const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize) const
{
	return FArrangedWidget(ChildWidget, MakeRoot(InLocalSize, FSlateLayoutTransform(AbsolutePosition + ChildOffset)));
}
