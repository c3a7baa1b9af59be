// Copyright Corvane. MIT License.
#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** Gives its content another desired size than it has; within what it is given itself, the content fills it. */
class SLATE_API SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	/** The desired width, whatever the content wants and the maximum says. */
	SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
	SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual float ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const override;

private:
	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
	TAttribute<FOptionalSize> MaxDesiredWidth;
};
