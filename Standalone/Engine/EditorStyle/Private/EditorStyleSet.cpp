// Copyright Corvane. MIT License.
#include "EditorStyleSet.h"

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"

namespace
{
	FSlateStyleSet MakeStyle()
	{
		FSlateStyleSet Style("EditorStyle");
		Style.Set("PropertyWindow.NormalFont", FCoreStyle::GetDefaultFontStyle("Regular", 9));
		return Style;
	}
}

const ISlateStyle& FEditorStyle::Get()
{
	static const FSlateStyleSet EditorStyle = MakeStyle();
	return EditorStyle;
}

FSlateFontInfo FEditorStyle::GetFontStyle(FName PropertyName, const ANSICHAR* Specifier)
{
	return Get().GetFontStyle(PropertyName, Specifier);
}
