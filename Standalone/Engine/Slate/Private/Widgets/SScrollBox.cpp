// Copyright Corvane. MIT License.
#include "Widgets/Layout/SScrollBox.h"

#include "Layout/LayoutUtils.h"
#include "Math/UnrealMathUtility.h"

namespace
{
	bool TakesSpareHeight(const SScrollBox::FSlot& Slot)
	{
		return (Slot.VAlignment == VAlign_Center || Slot.VAlignment == VAlign_Bottom) &&
			Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed;
	}
}

FChildren* SScrollBox::GetChildren()
{
	return &Children;
}

FVector2D SScrollBox::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	FVector2D Result;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D SlotSize = GetSlotDesiredSize(Children[Index]);
		Result = FVector2D(FMath::Max(Result.X, SlotSize.X), Result.Y + SlotSize.Y);
	}
	return Result;
}

float SScrollBox::ComputeSpareHeight(float AllottedHeight) const
{
	int32 Takers = 0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		AllottedHeight -= GetSlotDesiredSize(Children[Index]).Y;
		Takers += TakesSpareHeight(Children[Index]) ? 1 : 0;
	}
	return Takers > 0 ? FMath::Max(AllottedHeight, 0.0f) / static_cast<float>(Takers) : 0.0f;
}

void SScrollBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D& Allotted = AllottedGeometry.GetLocalSize();
	const float SpareHeight = ComputeSpareHeight(Allotted.Y);
	float SlotStart = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (Child->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const float SlotHeight = GetSlotDesiredSize(Slot).Y + (TakesSpareHeight(Slot) ? SpareHeight : 0.0f);
		const AlignmentArrangeResult X = AlignChild(Orient_Horizontal, Allotted.X, Slot);
		const AlignmentArrangeResult Y = AlignChild(Orient_Vertical, SlotHeight, Slot);
		ArrangedChildren.AddWidget(Child->GetVisibility(),
			AllottedGeometry.MakeChild(Child, FVector2D(X.Offset, SlotStart + Y.Offset), FVector2D(X.Size, Y.Size)));
		SlotStart += SlotHeight;
	}
}
