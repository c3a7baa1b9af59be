// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"

TEST(FMath, RoundsHalvesUpwards)
{
	EXPECT_EQ(FMath::RoundToInt(0.5f), 1);
	EXPECT_EQ(FMath::RoundToInt(-0.5f), 0);
	EXPECT_EQ(FMath::RoundToInt(-0.6f), -1);
}

TEST(FMath, TellsTheSmallerFromTheGreater)
{
	EXPECT_EQ(FMath::Min(1, 2), 1);
	EXPECT_EQ(FMath::Max(1, 2), 2);
}

TEST(FVector, ComparesEachComponent)
{
	EXPECT_TRUE(FVector() == FVector::ZeroVector);
	EXPECT_TRUE(FVector(1.0f, 2.0f, 3.0f) != FVector(1.0f, 2.0f, 4.0f));
	EXPECT_TRUE(FVector2D(1.0f, 2.0f) + FVector2D(3.0f, 4.0f) == FVector2D(4.0f, 6.0f));
	EXPECT_TRUE(FVector2D(1.0f, 2.0f) - FVector2D(3.0f, 5.0f) == FVector2D(-2.0f, -3.0f));
}

TEST(FRotator, IsNeverNormalised)
{
	const FRotator Rotator(0.0f, 540.0f, -720.0f);
	EXPECT_EQ(Rotator.Yaw, 540.0f);
	EXPECT_EQ(Rotator.Roll, -720.0f);
	EXPECT_TRUE(Rotator != FRotator(0.0f, 180.0f, 0.0f));
}

TEST(FLinearColor, IsOpaqueUnlessToldOtherwise)
{
	EXPECT_EQ(FLinearColor(1.0f, 0.0f, 0.0f).A, 1.0f);
	EXPECT_TRUE(FLinearColor(1.0f, 0.0f, 0.0f) == FLinearColor::Red);
	EXPECT_TRUE(FLinearColor::Transparent != FLinearColor::Black);
}
