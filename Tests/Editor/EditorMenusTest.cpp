// Copyright Corvane. MIT License.
#include "EditorMenus.h"

#include <gtest/gtest.h>

#include "EngineText.h"
#include "Framework/MultiBox/MultiBox.h"
#include "LevelToolBar.h"
#include "TestEditor.h"
#include "TestMenu.h"
#include "ToolMenus.h"

namespace
{
	/** An editor without the plugin, and the tests' buttons. */
	class FEditorMenusTest : public ::testing::Test
	{
	protected:
		std::string GetOpenError(const TCHAR* Button)
		{
			std::string Error;
			EXPECT_FALSE(FEditorMenus::Open(Button, Error).IsValid());
			return Error;
		}
		std::string GetChooseError(const TCHAR* Button, const TCHAR* Entry)
		{
			std::string Error;
			EXPECT_FALSE(FEditorMenus::Choose(Button, Entry, Error));
			return Error;
		}
		bool Choose(const TCHAR* Entry)
		{
			std::string Error;
			return FEditorMenus::Choose(TEXT("Test Menu"), Entry, Error);
		}

		FTestEditor Editor{FTestEditor::EngineOnly()};
		FTestMenu Menu;
	};
}

TEST_F(FEditorMenusTest, ListsTheButtonsFromLeftToRight)
{
	std::vector<std::string> Names;
	for (const FEditorMenus::FButton& Button : FEditorMenus::GetButtons())
	{
		Names.push_back(FEngineText::ForDisplay(Button.Section) + "/" + FEngineText::ForDisplay(Button.Entry->Name));
	}
	EXPECT_EQ(Names,
		(std::vector<std::string>{"File/Save", "Edit/Undo", "Edit/Redo", "First/TestMenu", "First/TestDead",
			"Second/TestEmpty", "Second/TestOther"}));
}

TEST(FEditorMenus, ListsNothingWhereNobodyExtendedTheToolbar)
{
	const FTestEditor Editor(FTestEditor::EngineOnly());
	UToolMenus::UnregisterOwner(FLevelToolBar::GetOwner());
	EXPECT_TRUE(FEditorMenus::GetButtons().empty());
}

TEST_F(FEditorMenusTest, MakesTheMenuAnewEachTime)
{
	std::string Error;
	const TSharedPtr<const FMultiBox> First = FEditorMenus::Open(TEXT("Test Menu"), Error);
	const TSharedPtr<const FMultiBox> Second = FEditorMenus::Open(TEXT("Test Menu"), Error);
	ASSERT_TRUE(First.IsValid());
	EXPECT_NE(First.Get(), Second.Get());
	EXPECT_EQ(Menu.MadeCount, 2);
}

TEST_F(FEditorMenusTest, FindsAButtonByItsLabelBeforeAnotherByItsName)
{
	EXPECT_EQ(GetOpenError(TEXT("testmenu")), "the button \"testmenu\" opens no menu");
	std::string Error;
	EXPECT_TRUE(FEditorMenus::Open(TEXT("TestMenu"), Error).IsValid());
	EXPECT_TRUE(FEditorMenus::Open(TEXT("TESTMENU"), Error).IsValid());
}

TEST_F(FEditorMenusTest, OpensNoMenuOfAButtonThatHasNoneOrCannotBeUsed)
{
	EXPECT_EQ(GetOpenError(TEXT("Nothing")), "the toolbar has no button \"Nothing\"");
	EXPECT_EQ(GetOpenError(TEXT("test menu")), "the toolbar has no button \"test menu\"");
	EXPECT_EQ(GetOpenError(TEXT("Dead")), "the button \"Dead\" is disabled");
	EXPECT_EQ(GetOpenError(TEXT("Empty")), "the button \"Empty\" opens no menu");
	EXPECT_EQ(Menu.MadeCount, 0);
}

TEST_F(FEditorMenusTest, ChoosesAnEntryByItsLabel)
{
	EXPECT_TRUE(Choose(TEXT("Open It")));
	EXPECT_EQ(Menu.OpenCount, 1);
	EXPECT_TRUE(Choose(TEXT("Light")));
	EXPECT_TRUE(Menu.bLight);
	EXPECT_EQ(Menu.MadeCount, 2);
}

TEST_F(FEditorMenusTest, ChoosesNothingThatCannotBeChosen)
{
	EXPECT_EQ(GetChooseError(TEXT("Test Menu"), TEXT("open it")), "the menu has no entry \"open it\"");
	EXPECT_EQ(GetChooseError(TEXT("Test Menu"), TEXT("Twin")), "the menu has 2 entries \"Twin\"");
	EXPECT_EQ(GetChooseError(TEXT("Test Menu"), TEXT("Does Nothing")), "the entry \"Does Nothing\" does nothing");
	EXPECT_EQ(GetChooseError(TEXT("Nothing"), TEXT("Open It")), "the toolbar has no button \"Nothing\"");
	Menu.bCanLight = false;
	EXPECT_EQ(GetChooseError(TEXT("Test Menu"), TEXT("Light")), "the entry \"Light\" is disabled");
	EXPECT_EQ(Menu.OpenCount, 0);
	EXPECT_FALSE(Menu.bLight);
}
