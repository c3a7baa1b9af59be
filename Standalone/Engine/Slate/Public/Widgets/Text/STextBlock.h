// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Internationalization/Text.h"
#include "Layout/Margin.h"
#include "Standalone/TextMeasure.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/**
 * Shows a text that cannot be edited. With AutoWrapText it wraps at its width cap (see SWidget), which is the width
 * that a filling slot then gives it; a slot that aligns it otherwise gives it its widest line, which leads to the same
 * lines.
 */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock) {}
	SLATE_ATTRIBUTE(FText, Text)
	/** By default the engine's regular font at size 9. */
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	/** By default the surroundings' foreground colour. */
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(FMargin, Margin)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return Text.Get(); }
	void SetText(const FText& InText);
	void SetText(const TAttribute<FText>& InText);
	/** The real engine keeps this getter and the two after it to itself. */
	const FSlateFontInfo& GetFont() const { return Font.Get(); }
	FSlateColor GetColorAndOpacity() const { return ColorAndOpacity.Get(); }
	ETextJustify::Type GetJustification() const { return Justification.Get(); }
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity);

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TAttribute<FText> Text;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<ETextJustify::Type> Justification;
	TAttribute<bool> AutoWrapText;
	TAttribute<FMargin> Margin;
	mutable FTextMeasure TextMeasure;
};
