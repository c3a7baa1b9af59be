// Copyright Corvane. MIT License.
#include <limits>

#include "Widgets/Text/STextBlock.h"

#include "Styling/CoreStyle.h"

void STextBlock::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	Font =
		InArgs._Font.IsSet() ? InArgs._Font : FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::RegularTextSize);
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Justification = InArgs._Justification;
	AutoWrapText = InArgs._AutoWrapText;
	Margin = InArgs._Margin;
}

void STextBlock::SetText(const FText& InText)
{
	Text = InText;
}

void STextBlock::SetText(const TAttribute<FText>& InText)
{
	Text = InText;
}

void STextBlock::SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
}

FVector2D STextBlock::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FVector2D MarginSize = Margin.Get().GetDesiredSize();
	const float WrapWidth = AutoWrapText.Get() ? GetWidthCap() - MarginSize.X : std::numeric_limits<float>::infinity();
	return TextMeasure.Measure(GetText().ToString(), GetFont(), WrapWidth) + MarginSize;
}
