// Copyright Corvane. MIT License.
#pragma once

#include "Math/Color.h"

/** A colour of its own, or the foreground colour of whatever surrounds the widget. */
struct FSlateColor
{
	FSlateColor() = default;
	FSlateColor(const FLinearColor& InColor) : SpecifiedColor(InColor), bIsSpecified(true) {}

	/** The surroundings' foreground colour. */
	static FSlateColor UseForeground() { return FSlateColor(); }
	bool IsColorSpecified() const { return bIsSpecified; }
	/** Meaningful only when specified. */
	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }
	bool operator==(const FSlateColor& Other) const
	{
		return bIsSpecified == Other.bIsSpecified && (!bIsSpecified || SpecifiedColor == Other.SpecifiedColor);
	}

private:
	FLinearColor SpecifiedColor;
	bool bIsSpecified = false;
};
