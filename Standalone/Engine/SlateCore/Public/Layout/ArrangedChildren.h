// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

/** Collects what a widget's ArrangeChildren puts in place, as far as it passes a filter. */
class FArrangedChildren
{
public:
	explicit FArrangedChildren(EVisibility InVisibilityFilter) : VisibilityFilter(InVisibilityFilter) {}

	void AddWidget(const FArrangedWidget& InWidgetGeometry) { Array.Add(InWidgetGeometry); }
	/** Adds the widget unless its visibility fails the filter. */
	void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Add(InWidgetGeometry);
		}
	}
	bool Accepts(EVisibility InVisibility) const
	{
		return EVisibility::DoesVisibilityPassFilter(InVisibility, VisibilityFilter);
	}
	int32 Num() const { return Array.Num(); }
	const FArrangedWidget& operator[](int32 Index) const { return Array[Index]; }
	const FArrangedWidget& Last() const { return Array.Last(); }

private:
	EVisibility VisibilityFilter;
	TArray<FArrangedWidget> Array;
};
