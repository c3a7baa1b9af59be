// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** A size or position on a page, in slate units, Y down. */
struct CORE_API FVector2D
{
	float X = 0.0f;
	float Y = 0.0f;

	constexpr FVector2D() = default;
	constexpr FVector2D(float InX, float InY) : X(InX), Y(InY) {}
	constexpr FVector2D operator+(const FVector2D& Other) const { return FVector2D(X + Other.X, Y + Other.Y); }
	constexpr FVector2D operator-(const FVector2D& Other) const { return FVector2D(X - Other.X, Y - Other.Y); }
	constexpr bool operator==(const FVector2D& Other) const { return X == Other.X && Y == Other.Y; }
	constexpr bool operator!=(const FVector2D& Other) const { return !(*this == Other); }
	static const FVector2D ZeroVector;
};
