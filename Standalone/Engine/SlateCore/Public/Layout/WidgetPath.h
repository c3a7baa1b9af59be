// Copyright Corvane. MIT License.
#pragma once

#include "Layout/ArrangedChildren.h"

/** The widgets from a root down to one of its descendants, each with its geometry. */
class FWidgetPath
{
public:
	FWidgetPath() : Widgets(EVisibility::Visible) {}

	bool IsValid() const { return Widgets.Num() > 0; }
	/** The one that the path leads to; fatal when the path is not valid. */
	const TSharedRef<SWidget>& GetLastWidget() const { return Widgets.Last().Widget; }

	FArrangedChildren Widgets;
};
