// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** A colour in linear space, each channel from 0 to 1, straight alpha. */
struct CORE_API FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	constexpr FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f) : R(InR), G(InG), B(InB), A(InA) {}
	constexpr bool operator==(const FLinearColor& Other) const
	{
		return R == Other.R && G == Other.G && B == Other.B && A == Other.A;
	}
	constexpr bool operator!=(const FLinearColor& Other) const { return !(*this == Other); }
	static const FLinearColor White;
	static const FLinearColor Black;
	static const FLinearColor Red;
	static const FLinearColor Transparent;
};
