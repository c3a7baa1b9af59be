// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Standalone/StyleInspector.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
	/** Two registered style sets, named in other than alphabetical order. */
	class FStyleInspectorTest : public ::testing::Test
	{
	protected:
		FStyleInspectorTest()
		{
			FSlateStyleRegistry::RegisterSlateStyle(Second);
			FSlateStyleRegistry::RegisterSlateStyle(First);
		}
		virtual ~FStyleInspectorTest() override
		{
			FSlateStyleRegistry::UnRegisterSlateStyle(First);
			FSlateStyleRegistry::UnRegisterSlateStyle(Second);
		}
		static FSlateBrush* Add(FSlateStyleSet& Style, const FName Key)
		{
			FSlateBrush* Brush = new FSlateBrush();
			Style.Set(Key, Brush);
			return Brush;
		}
		/** "Set/Key", or an empty string for a brush that is not found. */
		static FString Find(const FSlateBrush* Brush)
		{
			FName StyleSet("Untouched");
			FName Key("Untouched");
			const bool bFound = FStyleInspector::FindBrush(Brush, StyleSet, Key);
			EXPECT_EQ(bFound, StyleSet != FName("Untouched"));
			return bFound ? StyleSet.ToString() / Key.ToString() : FString();
		}

		FSlateStyleSet First{"alphaStyle"};
		FSlateStyleSet Second{"BetaStyle"};
	};
}

TEST_F(FStyleInspectorTest, ListsTheRegisteredSetsSortedByName)
{
	EXPECT_TRUE(FStyleInspector::GetStyleSetNames() == (TArray<FName>{"alphaStyle", "BetaStyle"}));
	FSlateStyleRegistry::UnRegisterSlateStyle(First);
	EXPECT_TRUE(FStyleInspector::GetStyleSetNames() == TArray<FName>{"BetaStyle"});
}

TEST_F(FStyleInspectorTest, FindsABrushWithSetAndKeyAsTheyWereSpelled)
{
	Add(First, "plugin.Icon");
	const FSlateBrush* Brush = Add(Second, "Plugin.ICON");
	EXPECT_TRUE(Find(Brush).Equals(TEXT("BetaStyle/Plugin.ICON")));
	EXPECT_TRUE(Find(First.GetBrush("PLUGIN.icon")).Equals(TEXT("alphaStyle/plugin.Icon")));
}

TEST_F(FStyleInspectorTest, FindsTheBrushThatReplacedAnotherUnderItsNewSpelling)
{
	const FSlateBrush* Replaced = Add(First, "plugin.icon");
	const FSlateBrush* Brush = Add(First, "Plugin.Icon");
	EXPECT_TRUE(Find(Brush).Equals(TEXT("alphaStyle/Plugin.Icon")));
	EXPECT_TRUE(Find(Replaced).IsEmpty());
}

TEST_F(FStyleInspectorTest, FindsNothingForBrushesOfNoRegisteredSet)
{
	const FSlateBrush Own;
	FSlateStyleSet Unregistered("Unregistered");
	EXPECT_TRUE(Find(nullptr).IsEmpty());
	EXPECT_TRUE(Find(&Own).IsEmpty());
	EXPECT_TRUE(Find(FStyleDefaults::GetNoBrush()).IsEmpty());
	EXPECT_TRUE(Find(First.GetBrush("Missing")).IsEmpty());
	EXPECT_TRUE(Find(Add(Unregistered, "Icon")).IsEmpty());
}
