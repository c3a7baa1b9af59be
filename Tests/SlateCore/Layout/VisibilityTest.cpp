// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Layout/Visibility.h"

TEST(EVisibility, IsVisibleByDefault)
{
	EXPECT_TRUE(EVisibility() == EVisibility::Visible);
}

TEST(EVisibility, DrawsTheThreeVisibleKindsOnly)
{
	EXPECT_TRUE(EVisibility::Visible.IsVisible());
	EXPECT_TRUE(EVisibility::HitTestInvisible.IsVisible());
	EXPECT_TRUE(EVisibility::SelfHitTestInvisible.IsVisible());
	EXPECT_FALSE(EVisibility::Hidden.IsVisible());
	EXPECT_FALSE(EVisibility::Collapsed.IsVisible());
}

TEST(EVisibility, FiltersByBeingDrawnWhateverCanBeHit)
{
	EXPECT_TRUE(EVisibility::DoesVisibilityPassFilter(EVisibility::HitTestInvisible, EVisibility::Visible));
	EXPECT_FALSE(EVisibility::DoesVisibilityPassFilter(EVisibility::Hidden, EVisibility::Visible));
	EXPECT_TRUE(EVisibility::DoesVisibilityPassFilter(EVisibility::Hidden, EVisibility::All));
}
