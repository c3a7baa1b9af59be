// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Brushes/SlateImageBrush.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"

namespace
{
	/** A brush that counts how many of its kind are alive. */
	struct FCountedBrush : public FSlateBrush
	{
		explicit FCountedBrush(int32& InAlive) : Alive(InAlive) { ++Alive; }
		virtual ~FCountedBrush() override { --Alive; }

		int32& Alive;
	};
}

TEST(FSlateStyleSet, FindsBrushesWithoutRegardToCase)
{
	FSlateStyleSet Style("Test");
	FSlateBrush* Brush = new FSlateBrush();
	Style.Set("Plugin.Icon", Brush);
	EXPECT_EQ(Style.GetBrush("PLUGIN.icon"), Brush);
	EXPECT_EQ(Style.GetOptionalBrush("plugin.Icon"), Brush);
}

TEST(FSlateStyleSet, FindsABrushByKeyAndSpecifier)
{
	FSlateStyleSet Style("Test");
	FSlateBrush* Brush = new FSlateBrush();
	Style.Set("Plugin.Icon.Small", Brush);
	EXPECT_EQ(Style.GetBrush("Plugin.Icon", ".Small"), Brush);
}

TEST(FSlateStyleSet, GivesADrawnDefaultForAKeyThatItLacks)
{
	const FSlateStyleSet Style("Test");
	const FSlateBrush* Default = Style.GetBrush("Nothing");
	ASSERT_NE(Default, nullptr);
	EXPECT_EQ(Default->DrawAs, ESlateBrushDrawType::Image);
	EXPECT_TRUE(Default->GetResourceName().IsNone());
}

TEST(FSlateStyleSet, GivesTheGivenBrushForAnOptionalKeyThatItLacks)
{
	const FSlateStyleSet Style("Test");
	EXPECT_EQ(Style.GetOptionalBrush("Nothing", nullptr, nullptr), nullptr);
	EXPECT_EQ(Style.GetOptionalBrush("Nothing"), FStyleDefaults::GetNoBrush());
	EXPECT_EQ(FStyleDefaults::GetNoBrush()->DrawAs, ESlateBrushDrawType::NoDrawType);
}

TEST(FSlateStyleSet, OwnsItsBrushesTheReplacedOnesTooUntilItDies)
{
	int32 Alive = 0;
	{
		FSlateStyleSet Style("Test");
		FCountedBrush* Second = new FCountedBrush(Alive);
		Style.Set("Key", new FCountedBrush(Alive));
		Style.Set("Key", Second);
		EXPECT_EQ(Style.GetBrush("Key"), Second);
		EXPECT_EQ(Alive, 2);
	}
	EXPECT_EQ(Alive, 0);
}

TEST(FSlateStyleSet, JoinsContentRootPathAndExtension)
{
	FSlateStyleSet Style("Test");
	Style.SetContentRoot(TEXT("/Plugins/Mine/Resources"));
	const FString Expected(TEXT("/Plugins/Mine/Resources/Logo/Logo_40x.png"));
	EXPECT_TRUE(Style.RootToContentDir("Logo/Logo_40x", TEXT(".png")).Equals(Expected));
	EXPECT_TRUE(Style.RootToContentDir(TEXT("Logo/Logo_40x"), TEXT(".png")).Equals(Expected));
	EXPECT_TRUE(Style.RootToContentDir(FString(TEXT("Logo/Logo_40x")), TEXT(".png")).Equals(Expected));
}

TEST(FSlateStyleSet, KeepsTheSpellingOfItsName)
{
	EXPECT_TRUE(FSlateStyleSet("MyStyle").GetStyleSetName().ToString().Equals(TEXT("MyStyle")));
}

TEST(FSlateBrush, IsAPlainWhiteImageByDefault)
{
	const FSlateBrush Brush;
	EXPECT_EQ(Brush.ImageSize, FVector2D(32.0f, 32.0f));
	EXPECT_EQ(Brush.DrawAs, ESlateBrushDrawType::Image);
	EXPECT_EQ(Brush.Tiling, ESlateBrushTileType::NoTile);
	EXPECT_EQ(Brush.Mirroring, ESlateBrushMirrorType::NoMirror);
	EXPECT_TRUE(Brush.Margin == FMargin());
	EXPECT_TRUE(Brush.TintColor == FSlateColor(FLinearColor::White));
}

TEST(FSlateImageBrush, IsAFullColourImageOfAFile)
{
	const FSlateImageBrush Brush(FString(TEXT("/D/Logo_40x.png")), FVector2D(40.0f, 30.0f));
	EXPECT_TRUE(Brush.GetResourceName().ToString().Equals(TEXT("/D/Logo_40x.png")));
	EXPECT_EQ(Brush.ImageSize, FVector2D(40.0f, 30.0f));
	EXPECT_EQ(Brush.DrawAs, ESlateBrushDrawType::Image);
	EXPECT_EQ(Brush.Tiling, ESlateBrushTileType::NoTile);
	EXPECT_EQ(Brush.ImageType, ESlateBrushImageType::FullColor);
	EXPECT_TRUE(Brush.TintColor == FSlateColor(FLinearColor::White));
}

TEST(FSlateColor, IsTheForegroundUnlessSpecified)
{
	EXPECT_FALSE(FSlateColor().IsColorSpecified());
	EXPECT_TRUE(FSlateColor() == FSlateColor::UseForeground());
	EXPECT_TRUE(FSlateColor(FLinearColor::Red).IsColorSpecified());
	EXPECT_EQ(FSlateColor(FLinearColor::Red).GetSpecifiedColor(), FLinearColor::Red);
	EXPECT_FALSE(FSlateColor(FLinearColor::Red) == FSlateColor(FLinearColor::White));
}

TEST(FSlateStyleSet, FindsFontsByKeyAndSpecifier)
{
	FSlateStyleSet Style("Test");
	const FSlateFontInfo Bold = FCoreStyle::GetDefaultFontStyle("Bold", 17);
	Style.Set("Plugin.Font", FCoreStyle::GetDefaultFontStyle("Italic", 3));
	Style.Set("plugin.font", Bold);
	EXPECT_EQ(Style.GetFontStyle("Plugin.FONT"), Bold);
	EXPECT_EQ(Style.GetFontStyle("Plugin", ".Font"), Bold);
}

TEST(FSlateStyleSet, GivesTheDefaultFontForAKeyThatItLacks)
{
	FSlateStyleSet Style("Test");
	Style.Set("Brush", new FSlateBrush());
	const FSlateFontInfo Default = FCoreStyle::GetDefaultFontStyle("Regular", 9);
	EXPECT_EQ(Style.GetFontStyle("Nothing"), Default);
	EXPECT_EQ(Style.GetFontStyle("Brush"), Default);
}
