// Copyright Corvane. MIT License.
#include "Layout/LayoutUtils.h"

#include "Math/UnrealMathUtility.h"
#include "Widgets/SWidget.h"

AlignmentArrangeResult AlignChild(EOrientation Orientation, float AllottedSize, const FAlignedSlot& ChildToArrange)
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const FMargin Padding = ChildToArrange.SlotPadding.Get();
	const FVector2D DesiredSize = ChildToArrange.GetWidget()->GetDesiredSize();
	const float Before = bHorizontal ? Padding.Left : Padding.Top;
	const float After = bHorizontal ? Padding.Right : Padding.Bottom;
	const float Available = FMath::Max(AllottedSize - Before - After, 0.0f);
	const float Size = FMath::Min(bHorizontal ? DesiredSize.X : DesiredSize.Y, Available);
	const EHorizontalAlignment Alignment =
		bHorizontal ? ChildToArrange.HAlignment : static_cast<EHorizontalAlignment>(ChildToArrange.VAlignment);
	switch (Alignment)
	{
		case HAlign_Left:
			return AlignmentArrangeResult{Before, Size};
		case HAlign_Center:
			return AlignmentArrangeResult{Before + (Available - Size) / 2.0f, Size};
		case HAlign_Right:
			return AlignmentArrangeResult{Before + Available - Size, Size};
		default:
			return AlignmentArrangeResult{Before, Available};
	}
}

void ArrangeSingleChild(
	const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const FAlignedSlot& ChildSlot)
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	const EVisibility ChildVisibility = Child->GetVisibility();
	if (ChildVisibility == EVisibility::Collapsed)
	{
		return;
	}
	const FVector2D& Allotted = AllottedGeometry.GetLocalSize();
	const AlignmentArrangeResult X = AlignChild(Orient_Horizontal, Allotted.X, ChildSlot);
	const AlignmentArrangeResult Y = AlignChild(Orient_Vertical, Allotted.Y, ChildSlot);
	ArrangedChildren.AddWidget(
		ChildVisibility, AllottedGeometry.MakeChild(Child, FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
}

FVector2D GetSlotDesiredSize(const FAlignedSlot& Slot)
{
	const TSharedRef<SWidget>& Child = Slot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D();
	}
	return Child->GetDesiredSize() + Slot.SlotPadding.Get().GetDesiredSize();
}
