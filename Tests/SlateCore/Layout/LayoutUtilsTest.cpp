// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestWidgets.h"

namespace
{
	class FTestSlot : public TAlignedSlot<FTestSlot>
	{};

	/** A leaf of 40 × 10 in a slot, prepassed. */
	struct FSlotFixture : public ::testing::Test
	{
		FSlotFixture()
		{
			Leaf->SlatePrepass(1.0f);
			Slot[Leaf];
		}

		TSharedRef<STestLeaf> Leaf = MakeLeaf(40.0f, 10.0f);
		FTestSlot Slot;
	};

	typedef FSlotFixture AlignChildTest;
	typedef FSlotFixture GetSlotDesiredSizeTest;
}

TEST_F(AlignChildTest, FillsTheSlotWithinThePadding)
{
	Slot.Padding(5.0f, 0.0f, 15.0f, 0.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Horizontal, 100.0f, Slot);
	EXPECT_EQ(Result.Offset, 5.0f);
	EXPECT_EQ(Result.Size, 80.0f);
}

TEST_F(AlignChildTest, PutsTheChildAtTheStart)
{
	Slot.HAlign(HAlign_Left).Padding(5.0f, 0.0f, 15.0f, 0.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Horizontal, 100.0f, Slot);
	EXPECT_EQ(Result.Offset, 5.0f);
	EXPECT_EQ(Result.Size, 40.0f);
}

TEST_F(AlignChildTest, CentresTheChildBetweenThePaddings)
{
	Slot.HAlign(HAlign_Center).Padding(5.0f, 0.0f, 15.0f, 0.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Horizontal, 100.0f, Slot);
	EXPECT_EQ(Result.Offset, 25.0f);
	EXPECT_EQ(Result.Size, 40.0f);
}

TEST_F(AlignChildTest, PutsTheChildAtTheEnd)
{
	Slot.HAlign(HAlign_Right).Padding(5.0f, 0.0f, 15.0f, 0.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Horizontal, 100.0f, Slot);
	EXPECT_EQ(Result.Offset, 45.0f);
	EXPECT_EQ(Result.Size, 40.0f);
}

TEST_F(AlignChildTest, TakesTheVerticalAlignmentForTheHeight)
{
	Slot.HAlign(HAlign_Fill).VAlign(VAlign_Bottom).Padding(0.0f, 0.0f, 0.0f, 3.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Vertical, 100.0f, Slot);
	EXPECT_EQ(Result.Offset, 87.0f);
	EXPECT_EQ(Result.Size, 10.0f);
}

TEST_F(AlignChildTest, ShrinksAnAlignedChildToWhatThereIs)
{
	Slot.HAlign(HAlign_Center).Padding(5.0f);
	const AlignmentArrangeResult Result = AlignChild(Orient_Horizontal, 30.0f, Slot);
	EXPECT_EQ(Result.Offset, 5.0f);
	EXPECT_EQ(Result.Size, 20.0f);
}

TEST_F(AlignChildTest, LeavesNothingWhenThePaddingIsLargerThanTheSlot)
{
	Slot.Padding(20.0f);
	EXPECT_EQ(AlignChild(Orient_Horizontal, 30.0f, Slot).Size, 0.0f);
}

TEST_F(GetSlotDesiredSizeTest, AddsThePadding)
{
	Slot.Padding(1.0f, 2.0f, 3.0f, 4.0f);
	EXPECT_EQ(GetSlotDesiredSize(Slot), FVector2D(44.0f, 16.0f));
}

TEST_F(GetSlotDesiredSizeTest, IsNothingForACollapsedChildPaddingIncluded)
{
	Slot.Padding(5.0f);
	Leaf->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(GetSlotDesiredSize(Slot), FVector2D());
}

TEST_F(GetSlotDesiredSizeTest, IsUnchangedForAHiddenChild)
{
	Slot.Padding(5.0f);
	Leaf->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(GetSlotDesiredSize(Slot), FVector2D(50.0f, 20.0f));
}

TEST_F(GetSlotDesiredSizeTest, FollowsABoundPadding)
{
	float Uniform = 1.0f;
	Slot.Padding(TAttribute<FMargin>::Create(
		TAttribute<FMargin>::FGetter::CreateLambda([&Uniform]() { return FMargin(Uniform); })));
	Uniform = 10.0f;
	EXPECT_EQ(GetSlotDesiredSize(Slot), FVector2D(60.0f, 30.0f));
}
