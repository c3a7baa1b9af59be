// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Two buttons, each with a caption, in a column. */
	class FButtonTest : public FSlateFixture
	{
	public:
		// clang-format off
		FButtonTest()
		{
			Root = SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(First, SButton).OnClicked_Raw(this, &FButtonTest::OnFirstClicked)
					[
						SAssignNew(FirstCaption, STextBlock).Text(FText::FromString(TEXT("First")))
					]
				]
				+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Second, SButton)];
		}
		// clang-format on
		FReply OnFirstClicked()
		{
			++FirstClicks;
			return FReply::Handled();
		}

		int32 FirstClicks = 0;
		TSharedPtr<SVerticalBox> Root;
		TSharedPtr<SButton> First;
		TSharedPtr<STextBlock> FirstCaption;
		TSharedPtr<SButton> Second;
	};
}

TEST_F(FButtonTest, ClicksWhenTheMouseIsReleasedOnIt)
{
	MouseDown(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
	MouseUp(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 1);
}

TEST_F(FButtonTest, ClicksWhenItsCaptionIsClicked)
{
	Click(FirstCaption.ToSharedRef());
	EXPECT_EQ(FirstClicks, 1);
}

TEST_F(FButtonTest, DoesNotClickWhenTheMouseIsReleasedElsewhere)
{
	MouseDown(First.ToSharedRef());
	MouseUp(Second.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
	MouseUp(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, DoesNotClickWhenTheMouseWasPressedElsewhere)
{
	MouseDown(Second.ToSharedRef());
	MouseUp(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, IgnoresTheRightMouseButton)
{
	MouseDown(First.ToSharedRef(), EKeys::RightMouseButton);
	MouseUp(First.ToSharedRef(), EKeys::RightMouseButton);
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, DoesNothingWhileDisabled)
{
	First->SetEnabled(false);
	Click(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
	EXPECT_FALSE(HasFocus(First.ToSharedRef()));
}

TEST_F(FButtonTest, DoesNothingWithinADisabledParent)
{
	Root->SetEnabled(false);
	Click(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, DoesNotClickWhenItIsDisabledBetweenPressAndRelease)
{
	MouseDown(First.ToSharedRef());
	First->SetEnabled(false);
	MouseUp(First.ToSharedRef());
	First->SetEnabled(true);
	MouseUp(First.ToSharedRef());
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, TakesTheFocusWhenPressed)
{
	MouseDown(First.ToSharedRef());
	EXPECT_TRUE(HasFocus(First.ToSharedRef()));
}

TEST_F(FButtonTest, ClicksByEnterAndBySpaceBarWhileFocused)
{
	App().SetKeyboardFocus(First);
	EXPECT_TRUE(KeyDown(EKeys::Enter));
	EXPECT_EQ(FirstClicks, 0);
	KeyUp(EKeys::Enter);
	EXPECT_EQ(FirstClicks, 1);
	KeyDown(EKeys::SpaceBar);
	KeyUp(EKeys::SpaceBar);
	EXPECT_EQ(FirstClicks, 2);
}

TEST_F(FButtonTest, LeavesOtherKeysToOthers)
{
	App().SetKeyboardFocus(First);
	EXPECT_FALSE(KeyDown(EKeys::A));
	EXPECT_FALSE(KeyUp(EKeys::A));
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, LetsGoWhenItLosesTheFocus)
{
	App().SetKeyboardFocus(First);
	KeyDown(EKeys::SpaceBar);
	App().SetKeyboardFocus(Second);
	App().SetKeyboardFocus(First);
	KeyUp(EKeys::SpaceBar);
	EXPECT_EQ(FirstClicks, 0);
}

TEST_F(FButtonTest, SwallowsAClickThatNobodyListensTo)
{
	MouseDown(Second.ToSharedRef());
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Second.ToSharedRef(), Path));
	EXPECT_TRUE(App().RoutePointerUpEvent(Path, MakePointerEvent(EKeys::LeftMouseButton)).IsEventHandled());
}
