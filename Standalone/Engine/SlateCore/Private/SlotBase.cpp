// Copyright Corvane. MIT License.
#include "SlotBase.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

namespace
{
	/** The null widget stands in many places at once and has no parent; and the owner of an empty slot need not be
	 * shared yet. */
	void AdoptInto(const TSharedRef<SWidget>& Widget, SWidget& Owner)
	{
		if (Widget != SNullWidget::NullWidget)
		{
			Widget->AssignParentWidget(Owner.AsShared());
		}
	}
}

FSlotBase::FSlotBase() : Widget(SNullWidget::NullWidget) {}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	if (Owner)
	{
		Widget->ForgetParentWidget(*Owner);
		AdoptInto(InWidget, *Owner);
	}
	Widget = InWidget;
}

void FSlotBase::SetOwner(SWidget& InOwner)
{
	Owner = &InOwner;
	AdoptInto(Widget, InOwner);
}
