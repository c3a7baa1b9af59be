// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Brushes/SlateImageBrush.h"
#include "Widgets/Images/SImage.h"

TEST(SImage, IsAsLargeAsItsBrushSays)
{
	const FSlateImageBrush Brush(TEXT("a.png"), FVector2D(128.0f, 64.0f));
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush);
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(128.0f, 64.0f));
	EXPECT_EQ(Image->GetImage(), &Brush);
}

TEST(SImage, IsNothingWithoutBrush)
{
	const TSharedRef<SImage> Image = SNew(SImage);
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D());
}
