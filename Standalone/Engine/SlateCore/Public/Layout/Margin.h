// Copyright Corvane. MIT License.
#pragma once

#include "Math/Vector2D.h"

/** Space on the four sides of something, in slate units. */
struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	FMargin() = default;
	FMargin(float Uniform) : FMargin(Uniform, Uniform) {}
	FMargin(float Horizontal, float Vertical) : FMargin(Horizontal, Vertical, Horizontal, Vertical) {}
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft), Top(InTop), Right(InRight), Bottom(InBottom)
	{}
	/** What the margin adds to the size of its content. */
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }
	bool operator==(const FMargin& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}
};
