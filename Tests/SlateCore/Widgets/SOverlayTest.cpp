// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestWidgets.h"
#include "Widgets/SOverlay.h"

// clang-format off
TEST(SOverlay, IsAsLargeAsTheLargestLayer)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay)
		+ SOverlay::Slot()[MakeLeaf(100.0f, 20.0f)]
		+ SOverlay::Slot().Padding(5.0f)[MakeLeaf(50.0f, 60.0f)];
	Overlay->SlatePrepass(1.0f);
	EXPECT_EQ(Overlay->GetDesiredSize(), FVector2D(100.0f, 70.0f));
}

TEST(SOverlay, GivesEveryLayerTheWholePlace)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay)
		+ SOverlay::Slot()[MakeLeaf(100.0f, 20.0f)]
		+ SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Top)[MakeLeaf(50.0f, 60.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Overlay, 200.0f, 100.0f);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 200.0f, 100.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{150.0f, 0.0f, 50.0f, 60.0f}));
}
// clang-format on

TEST(SOverlay, ShrinksToThePageThatShows)
{
	const TSharedRef<STestLeaf> High = MakeLeaf(10.0f, 90.0f);
	const TSharedRef<SOverlay> Overlay =
		SNew(SOverlay) + SOverlay::Slot()[High] + SOverlay::Slot()[MakeLeaf(10.0f, 40.0f)];
	High->SetVisibility(EVisibility::Collapsed);
	Overlay->SlatePrepass(1.0f);
	EXPECT_EQ(Overlay->GetDesiredSize(), FVector2D(10.0f, 40.0f));
}
