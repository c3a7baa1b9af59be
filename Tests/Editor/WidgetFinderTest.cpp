// Copyright Corvane. MIT License.
#include "WidgetFinder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestEditor.h"
#include "UserInput.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** A page with texts, boxes and buttons, each of which can be hidden. */
	class FWidgetFinderTest : public ::testing::Test
	{
	protected:
		FWidgetFinderTest();

		std::vector<std::string> GetTexts() const
		{
			std::vector<std::string> Texts;
			for (const TSharedRef<STextBlock>& Text : FWidgetFinder(Root.ToSharedRef()).GetTexts())
			{
				Texts.emplace_back(TCHAR_TO_UTF8(*Text->GetText().ToString()));
			}
			return Texts;
		}

		FReply OnClicked()
		{
			++Clicks;
			return FReply::Handled();
		}

		static FText Text(const TCHAR* Source) { return FText::FromString(Source); }

		FTestEditor Editor{FTestEditor::EngineOnly()};
		FOnClicked Clicked = FOnClicked::CreateRaw(this, &FWidgetFinderTest::OnClicked);
		int32 Clicks = 0;
		TSharedPtr<SVerticalBox> Root;
		TSharedPtr<SVerticalBox> Group;
		TSharedPtr<STextBlock> Label;
		TSharedPtr<SEditableTextBox> Box;
		TSharedPtr<SButton> Button;
	};

	FWidgetFinderTest::FWidgetFinderTest()
	{
		// clang-format off
		SAssignNew(Root, SVerticalBox)
		+ SVerticalBox::Slot()
		[
			SAssignNew(Label, STextBlock).Text(Text(TEXT("Above")))
		]
		+ SVerticalBox::Slot()
		[
			SAssignNew(Group, SVerticalBox)
			+ SVerticalBox::Slot()
			[
				SAssignNew(Box, SEditableTextBox)
			]
			+ SVerticalBox::Slot()
			[
				SNew(STextBlock).Text(Text(TEXT("Below")))
			]
		]
		+ SVerticalBox::Slot()
		[
			SAssignNew(Button, SButton).OnClicked(Clicked)
			[
				SNew(STextBlock).Text(Text(TEXT("Press")))
			]
		];
		// clang-format on
	}
}

TEST_F(FWidgetFinderTest, FindsTextsFromTheTopDownWithoutCaptions)
{
	EXPECT_EQ(GetTexts(), (std::vector<std::string>{"Above", "Below"}));
}

TEST_F(FWidgetFinderTest, LeavesOutWhatIsHiddenOrCollapsed)
{
	Label->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(GetTexts(), std::vector<std::string>{"Below"});
	Label->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(GetTexts(), std::vector<std::string>{"Below"});
	Label->SetVisibility(EVisibility::HitTestInvisible);
	EXPECT_EQ(GetTexts().size(), 2U);
}

TEST_F(FWidgetFinderTest, LeavesOutWhatStandsInSomethingHidden)
{
	Group->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(GetTexts(), std::vector<std::string>{"Above"});
	EXPECT_EQ(FWidgetFinder(Root.ToSharedRef()).GetEditBoxes().Num(), 0);
}

TEST_F(FWidgetFinderTest, FindsEditBoxes)
{
	const TArray<TSharedRef<SEditableTextBox>> Boxes = FWidgetFinder(Root.ToSharedRef()).GetEditBoxes();
	ASSERT_EQ(Boxes.Num(), 1);
	EXPECT_EQ(&Boxes[0].Get(), Box.Get());
}

TEST_F(FWidgetFinderTest, FindsAButtonByItsExactCaption)
{
	const FWidgetFinder Finder(Root.ToSharedRef());
	EXPECT_EQ(Finder.FindButton(TEXT("Press")).Get(), Button.Get());
	EXPECT_FALSE(Finder.FindButton(TEXT("press")).IsValid());
	EXPECT_FALSE(Finder.FindButton(TEXT("Above")).IsValid());
}

TEST_F(FWidgetFinderTest, FindsNoButtonThatIsDisabledOrStandsInSomethingDisabled)
{
	const FWidgetFinder Finder(Root.ToSharedRef());
	Button->SetEnabled(false);
	EXPECT_FALSE(Finder.FindButton(TEXT("Press")).IsValid());
	EXPECT_EQ(Finder.GetButtons().Num(), 0);
	Button->SetEnabled(true);
	Root->SetEnabled(false);
	EXPECT_FALSE(Finder.FindButton(TEXT("Press")).IsValid());
}

TEST_F(FWidgetFinderTest, FindsTheTextBelowAWidget)
{
	const FWidgetFinder Finder(Root.ToSharedRef());
	const TSharedPtr<STextBlock> Found = Finder.FindTextAfter(Box.ToSharedRef());
	ASSERT_TRUE(Found.IsValid());
	EXPECT_TRUE(Found->GetText().ToString().Equals(TEXT("Below")));
	EXPECT_FALSE(Finder.FindTextAfter(Button.ToSharedRef()).IsValid());
}

TEST_F(FWidgetFinderTest, TypesIntoWhatHasTheFocus)
{
	ASSERT_TRUE(FUserInput::Focus(Box.ToSharedRef()));
	FUserInput::Type(TEXT("a😀"));
	EXPECT_TRUE(Box->GetText().ToString().Equals(TEXT("a😀")));
}

TEST_F(FWidgetFinderTest, PastesIntoWhatHasTheFocus)
{
	ASSERT_TRUE(FUserInput::Focus(Box.ToSharedRef()));
	FUserInput::Paste(TEXT("a\tb"));
	EXPECT_TRUE(Box->GetText().ToString().Equals(TEXT("a\tb")));
}

TEST_F(FWidgetFinderTest, GivesNoFocusToWhatCannotHaveIt)
{
	EXPECT_FALSE(FUserInput::Focus(Label.ToSharedRef()));
}

TEST_F(FWidgetFinderTest, ClicksAShownButtonOnce)
{
	EXPECT_TRUE(FUserInput::Click(Button.ToSharedRef()));
	EXPECT_EQ(Clicks, 1);
}

TEST_F(FWidgetFinderTest, DoesNotClickAHiddenButton)
{
	Root->SetVisibility(EVisibility::Hidden);
	EXPECT_FALSE(FUserInput::Click(Button.ToSharedRef()));
	EXPECT_EQ(Clicks, 0);
}
