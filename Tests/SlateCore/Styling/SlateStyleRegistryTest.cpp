// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

TEST(FSlateStyleRegistry, FindsARegisteredSetByNameUntilItIsUnregistered)
{
	const FSlateStyleSet Style("RegistryTest");
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("registrytest"), &Style);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("RegistryTest"), nullptr);
}

TEST(FSlateStyleRegistry, UnregistersByNameAndIgnoresUnknownOnes)
{
	const FSlateStyleSet Style("RegistryTest");
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	FSlateStyleRegistry::UnRegisterSlateStyle(FName("SomethingElse"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("RegistryTest"), &Style);
	FSlateStyleRegistry::UnRegisterSlateStyle(FName("RegistryTest"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("RegistryTest"), nullptr);
}

TEST(FSlateStyleRegistryDeathTest, DiesOfASecondSetOfOneName)
{
	const FSlateStyleSet First("Twice");
	const FSlateStyleSet Second("TWICE");
	EXPECT_EXIT(
		{
			FSlateStyleRegistry::RegisterSlateStyle(First);
			FSlateStyleRegistry::RegisterSlateStyle(Second);
		},
		::testing::ExitedWithCode(3), "'TWICE' is registered already");
}

TEST(FCoreStyle, MakesTheDefaultFontInATypefaceAndSize)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Italic", 8);
	EXPECT_EQ(Font.TypefaceFontName, FName("Italic"));
	EXPECT_EQ(Font.Size, 8);
	EXPECT_EQ(Font.OutlineSettings.OutlineSize, 0);
	EXPECT_FALSE(Font == FCoreStyle::GetDefaultFontStyle("Regular", 8));
	EXPECT_FALSE(Font == FCoreStyle::GetDefaultFontStyle("Italic", 9));
}

TEST(FCoreStyle, IsAStyleSetOfTheEngine)
{
	EXPECT_EQ(FCoreStyle::Get().GetStyleSetName(), FName("CoreStyle"));
}
