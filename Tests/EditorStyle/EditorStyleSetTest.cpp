// Copyright Corvane. MIT License.
#include "EditorStyleSet.h"

#include <gtest/gtest.h>

#include "Standalone/StyleInspector.h"
#include "Styling/CoreStyle.h"

TEST(FEditorStyle, HasTheFontOfPropertyRows)
{
	const FSlateFontInfo Font = FEditorStyle::GetFontStyle("PropertyWindow.NormalFont");
	EXPECT_EQ(Font, FCoreStyle::GetDefaultFontStyle("Regular", 9));
	EXPECT_EQ(FEditorStyle::GetFontStyle("propertywindow.normalFONT"), Font);
	EXPECT_EQ(FEditorStyle::GetFontStyle("PropertyWindow", ".NormalFont"), Font);
	EXPECT_EQ(FEditorStyle::Get().GetFontStyle("PropertyWindow.NormalFont"), Font);
}

TEST(FEditorStyle, GivesTheDefaultFontForAKeyThatItLacks)
{
	EXPECT_EQ(FEditorStyle::GetFontStyle("NoSuchFont"), FCoreStyle::Get().GetFontStyle("NoSuchFont"));
}

TEST(FEditorStyle, IsNotAmongTheRegisteredSets)
{
	EXPECT_TRUE(FEditorStyle::Get().GetStyleSetName() == FName("EditorStyle"));
	EXPECT_EQ(FStyleInspector::GetStyleSetNames().Num(), 0);
}
