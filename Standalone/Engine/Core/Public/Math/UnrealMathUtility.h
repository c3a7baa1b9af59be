// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

#include <cmath>

/** The few functions of the engine's maths that are used here. */
struct FMath
{
	template <typename T>
	static T Max(const T A, const T B)
	{
		return A >= B ? A : B;
	}
	template <typename T>
	static T Min(const T A, const T B)
	{
		return A <= B ? A : B;
	}
	/** To the nearest whole number, halves upwards. */
	static int32 RoundToInt(float Value) { return static_cast<int32>(std::floor(Value + 0.5f)); }
};
