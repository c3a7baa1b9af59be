// Copyright Corvane. MIT License.
#pragma once

#include "Layout/Geometry.h"

/** A widget and where its parent has put it. */
class FArrangedWidget
{
public:
	FArrangedWidget(const TSharedRef<SWidget>& InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry), Widget(InWidget)
	{}

	FGeometry Geometry;
	TSharedRef<SWidget> Widget;
};
