// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"
#include "Styling/StyleDefaults.h"

/** A named set of brushes and fonts. Keys are names and so ignore the case of ASCII letters. */
class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;
	/** The key's brush, or the default brush when there is none: never null. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	/** The key's brush, or the given one when there is none. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const = 0;
	/** The key's font, or the default font when there is none. */
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

private:
	friend class FStyleInspector;

	/** The key under which a brush is found, or null. The real engine does not tell. */
	virtual const FName* FindKey(const FSlateBrush* Brush) const = 0;
};
