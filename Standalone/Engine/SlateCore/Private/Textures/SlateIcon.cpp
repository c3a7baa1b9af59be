// Copyright Corvane. MIT License.
#include "Textures/SlateIcon.h"

#include "Styling/SlateStyleRegistry.h"

FSlateIcon::FSlateIcon() = default;

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
	: StyleSetName(InStyleSetName), StyleName(InStyleName), bIsSet(true)
{}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* Style = bIsSet ? FSlateStyleRegistry::FindSlateStyle(StyleSetName) : nullptr;
	return Style ? Style->GetBrush(StyleName) : FStyleDefaults::GetNoBrush();
}
