// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/SWidget.h"

/** A widget with one child slot: the base of widgets that are put together from others. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(
		const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual float ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const override;

	FSimpleSlot ChildSlot{*this};
};
