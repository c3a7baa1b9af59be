// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** An orientation as angles in degrees: pitch up, yaw to the right, roll clockwise. Kept as set, never normalised. */
struct CORE_API FRotator
{
	float Pitch = 0.0f;
	float Yaw = 0.0f;
	float Roll = 0.0f;

	constexpr FRotator() = default;
	constexpr FRotator(float InPitch, float InYaw, float InRoll) : Pitch(InPitch), Yaw(InYaw), Roll(InRoll) {}
	constexpr bool operator==(const FRotator& Other) const
	{
		return Pitch == Other.Pitch && Yaw == Other.Yaw && Roll == Other.Roll;
	}
	constexpr bool operator!=(const FRotator& Other) const { return !(*this == Other); }
	static const FRotator ZeroRotator;
};
