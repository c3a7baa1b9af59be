// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"

/** The editor's own style, "EditorStyle". It is not among the registered sets, as the engine's basic style isn't. */
class EDITORSTYLE_API FEditorStyle
{
public:
	static const ISlateStyle& Get();
	/** The key's font in this style, or the default font when there is none. */
	static FSlateFontInfo GetFontStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr);
};
