// Copyright Corvane. MIT License.
#include "Styling/SlateStyleRegistry.h"

TMap<FName, const ISlateStyle*>& FSlateStyleRegistry::GetRegisteredStyles()
{
	static TMap<FName, const ISlateStyle*> RegisteredStyles;
	return RegisteredStyles;
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName& StyleName = InSlateStyle.GetStyleSetName();
	checkf(FindSlateStyle(StyleName) == nullptr, TEXT("Slate style '%s' is registered already"), *StyleName.ToString());
	GetRegisteredStyles().Add(StyleName, &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	UnRegisterSlateStyle(InSlateStyle.GetStyleSetName());
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleName)
{
	GetRegisteredStyles().Remove(StyleName);
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	return GetRegisteredStyles().FindRef(InSlateStyleName);
}
