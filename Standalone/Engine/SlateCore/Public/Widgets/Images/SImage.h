// Copyright Corvane. MIT License.
#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** Shows a brush, as large as the brush says. */
class SLATECORE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage) : _Image(nullptr) {}
	SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	/** Null when it was given none. The real engine has no such getter. */
	const FSlateBrush* GetImage() const { return Image.Get(); }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TAttribute<const FSlateBrush*> Image;
};
