// Copyright Corvane. MIT License.
#include "Widgets/SPanel.h"

const FAlignedSlot& SPanel::GetAlignedSlot(int32 ChildIndex) const
{
	return static_cast<const FAlignedSlot&>(const_cast<SPanel*>(this)->GetChildren()->GetSlotAt(ChildIndex));
}

float SPanel::ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const
{
	return OwnWidthCap - GetAlignedSlot(ChildIndex).SlotPadding.Get().GetDesiredSize().X;
}
