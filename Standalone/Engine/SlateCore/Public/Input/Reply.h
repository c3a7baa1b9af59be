// Copyright Corvane. MIT License.
#pragma once

#include "Input/Events.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** A widget's answer to an input event: whether others still get to see the event, and what the application shall do
 * for it. */
class FReply
{
public:
	/** The event ends here. */
	static FReply Handled() { return FReply(true); }
	/** The parent is asked next. */
	static FReply Unhandled() { return FReply(false); }
	/** Asks that the widget hears of the coming release of the mouse button, wherever that happens. */
	FReply& CaptureMouse(const TSharedRef<SWidget>& InMouseCaptor)
	{
		MouseCaptor = InMouseCaptor;
		return *this;
	}
	bool IsEventHandled() const { return bIsHandled; }
	const TSharedPtr<SWidget>& GetMouseCaptor() const { return MouseCaptor; }

private:
	explicit FReply(bool bInIsHandled) : bIsHandled(bInIsHandled) {}

	bool bIsHandled;
	TSharedPtr<SWidget> MouseCaptor;
};
