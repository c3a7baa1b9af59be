// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** A point or direction in the world: left-handed, X forward, Y right, Z up, in centimetres. */
struct CORE_API FVector
{
	float X = 0.0f;
	float Y = 0.0f;
	float Z = 0.0f;

	constexpr FVector() = default;
	constexpr FVector(float InX, float InY, float InZ) : X(InX), Y(InY), Z(InZ) {}
	constexpr bool operator==(const FVector& Other) const { return X == Other.X && Y == Other.Y && Z == Other.Z; }
	constexpr bool operator!=(const FVector& Other) const { return !(*this == Other); }
	static const FVector ZeroVector;
};
