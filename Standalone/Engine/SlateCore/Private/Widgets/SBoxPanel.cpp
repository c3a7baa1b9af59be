// Copyright Corvane. MIT License.
#include "Widgets/SBoxPanel.h"

#include "Layout/LayoutUtils.h"
#include "Math/UnrealMathUtility.h"

namespace
{
	bool IsCollapsed(const FSlotBase& Slot)
	{
		return Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
	}

	float GetWeight(const FSizeParam& SizeParam)
	{
		return FMath::Max(SizeParam.Value.Get(), 0.0f);
	}
}

FChildren* SBoxPanel::GetChildren()
{
	return &Children;
}

FVector2D SBoxPanel::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	FVector2D Result;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D SlotSize = GetSlotDesiredSize(Children[Index]);
		Result = Orientation == Orient_Horizontal ? FVector2D(Result.X + SlotSize.X, FMath::Max(Result.Y, SlotSize.Y))
												  : FVector2D(FMath::Max(Result.X, SlotSize.X), Result.Y + SlotSize.Y);
	}
	return Result;
}

float SBoxPanel::ComputeStretchUnit(float AllottedLength) const
{
	float FixedLength = 0.0f;
	float TotalWeight = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (IsCollapsed(Slot))
		{
			continue;
		}
		if (Slot.SizeParam.SizeRule == FSizeParam::SizeRule_Auto)
		{
			FixedLength += Along(GetSlotDesiredSize(Slot));
		}
		else
		{
			FixedLength += Along(Slot.SlotPadding.Get().GetDesiredSize());
			TotalWeight += GetWeight(Slot.SizeParam);
		}
	}
	return TotalWeight > 0.0f ? FMath::Max(AllottedLength - FixedLength, 0.0f) / TotalWeight : 0.0f;
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const FVector2D& Allotted = AllottedGeometry.GetLocalSize();
	const float StretchUnit = ComputeStretchUnit(Along(Allotted));
	float SlotStart = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (IsCollapsed(Slot))
		{
			continue;
		}
		const float SlotLength = Slot.SizeParam.SizeRule == FSizeParam::SizeRule_Auto
			? Along(GetSlotDesiredSize(Slot))
			: GetWeight(Slot.SizeParam) * StretchUnit + Along(Slot.SlotPadding.Get().GetDesiredSize());
		const AlignmentArrangeResult X = AlignChild(Orient_Horizontal, bHorizontal ? SlotLength : Allotted.X, Slot);
		const AlignmentArrangeResult Y = AlignChild(Orient_Vertical, bHorizontal ? Allotted.Y : SlotLength, Slot);
		const FVector2D Offset =
			bHorizontal ? FVector2D(SlotStart + X.Offset, Y.Offset) : FVector2D(X.Offset, SlotStart + Y.Offset);
		ArrangedChildren.AddWidget(Slot.GetWidget()->GetVisibility(),
			AllottedGeometry.MakeChild(Slot.GetWidget(), Offset, FVector2D(X.Size, Y.Size)));
		SlotStart += SlotLength;
	}
}
