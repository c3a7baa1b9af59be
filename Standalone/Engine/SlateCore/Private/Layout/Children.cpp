// Copyright Corvane. MIT License.
#include "Layout/Children.h"

#include "Widgets/SNullWidget.h"

FNoChildren FNoChildren::NoChildrenInstance;

int32 FNoChildren::Num() const
{
	return 0;
}

const FSlotBase& FNoChildren::GetSlotAt(int32 ChildIndex) const
{
	checkf(false, TEXT("A widget without children was asked for child %i"), ChildIndex);
	return *static_cast<const FSlotBase*>(nullptr);
}

FSimpleSlot::FSimpleSlot(SWidget& InOwner)
{
	SetOwner(InOwner);
}

int32 FSimpleSlot::Num() const
{
	return GetWidget() == SNullWidget::NullWidget ? 0 : 1;
}

const FSlotBase& FSimpleSlot::GetSlotAt(int32 ChildIndex) const
{
	check(ChildIndex == 0);
	return *this;
}
