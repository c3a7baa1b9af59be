// Copyright Corvane. MIT License.
#include "Widgets/SCompoundWidget.h"

#include "Layout/LayoutUtils.h"

FChildren* SCompoundWidget::GetChildren()
{
	return &ChildSlot;
}

FVector2D SCompoundWidget::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return GetSlotDesiredSize(ChildSlot);
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot);
}

float SCompoundWidget::ComputeChildWidthCap(int32 /*ChildIndex*/, float OwnWidthCap) const
{
	return OwnWidthCap - ChildSlot.SlotPadding.Get().GetDesiredSize().X;
}
