// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"

TEST(FSlateIcon, IsUnsetByDefaultAndDrawsNothing)
{
	const FSlateIcon Icon;
	EXPECT_FALSE(Icon.IsSet());
	EXPECT_EQ(Icon.GetIcon(), FStyleDefaults::GetNoBrush());
}

TEST(FSlateIcon, KeepsSetAndKeyAsWritten)
{
	const FSlateIcon Icon("MyStyle", "my.Icon_16x");
	EXPECT_TRUE(Icon.IsSet());
	EXPECT_TRUE(Icon.GetStyleSetName().ToString().Equals(TEXT("MyStyle")));
	EXPECT_TRUE(Icon.GetStyleName().ToString().Equals(TEXT("my.Icon_16x")));
}

TEST(FSlateIcon, LooksItsBrushUpWhenAsked)
{
	const FSlateIcon Icon("IconTest", "Icon");
	EXPECT_EQ(Icon.GetIcon(), FStyleDefaults::GetNoBrush());
	FSlateStyleSet Style("IconTest");
	FSlateBrush* Brush = new FSlateBrush();
	Style.Set("Icon", Brush);
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetIcon(), Brush);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}
