// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Notes what check boxes tell. */
	class FCheckBoxTest : public FSlateFixture
	{
	public:
		TSharedRef<SCheckBox> Make(const TAttribute<ECheckBoxState>& State)
		{
			return SNew(SCheckBox).IsChecked(State).OnCheckStateChanged_Raw(this, &FCheckBoxTest::OnChanged);
		}
		void OnChanged(ECheckBoxState NewState) { Told.Add(NewState); }

		TArray<ECheckBoxState> Told;
	};

	typedef TArray<ECheckBoxState> FStates;
}

TEST_F(FCheckBoxTest, IsUncheckedUnlessToldOtherwise)
{
	const TSharedRef<SCheckBox> Plain = SNew(SCheckBox);
	EXPECT_EQ(Plain->GetCheckedState(), ECheckBoxState::Unchecked);
	EXPECT_FALSE(Plain->IsChecked());
	EXPECT_TRUE(Make(ECheckBoxState::Checked)->IsChecked());
	EXPECT_EQ(Make(ECheckBoxState::Undetermined)->GetCheckedState(), ECheckBoxState::Undetermined);
	EXPECT_FALSE(Make(ECheckBoxState::Undetermined)->IsChecked());
}

TEST_F(FCheckBoxTest, TogglesWithEachClick)
{
	const TSharedRef<SCheckBox> Box = Make(ECheckBoxState::Unchecked);
	MouseDown(Box);
	EXPECT_FALSE(Box->IsChecked());
	MouseUp(Box);
	EXPECT_TRUE(Box->IsChecked());
	Click(Box);
	EXPECT_FALSE(Box->IsChecked());
	EXPECT_TRUE(Told == (FStates{ECheckBoxState::Checked, ECheckBoxState::Unchecked}));
}

TEST_F(FCheckBoxTest, ChecksFromUndetermined)
{
	const TSharedRef<SCheckBox> Box = Make(ECheckBoxState::Undetermined);
	Click(Box);
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Checked);
	EXPECT_TRUE(Told == FStates{ECheckBoxState::Checked});
}

TEST_F(FCheckBoxTest, LeavesABoundStateToItsOwner)
{
	ECheckBoxState State = ECheckBoxState::Checked;
	const TSharedRef<SCheckBox> Box = Make(TAttribute<ECheckBoxState>::Create(
		TAttribute<ECheckBoxState>::FGetter::CreateLambda([&State]() { return State; })));
	Click(Box);
	EXPECT_TRUE(Box->IsChecked());
	State = ECheckBoxState::Undetermined;
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Undetermined);
	Click(Box);
	EXPECT_TRUE(Told == (FStates{ECheckBoxState::Unchecked, ECheckBoxState::Checked}));
}

TEST_F(FCheckBoxTest, HasItsNewStateWhenItTells)
{
	TSharedPtr<SCheckBox> Box;
	bool bWasChecked = false;
	SAssignNew(Box, SCheckBox).OnCheckStateChanged_Lambda([&](ECheckBoxState) { bWasChecked = Box->IsChecked(); });
	Click(Box.ToSharedRef());
	EXPECT_TRUE(bWasChecked);
}

TEST_F(FCheckBoxTest, TogglesByKeyWhileFocused)
{
	const TSharedRef<SCheckBox> Box = Make(ECheckBoxState::Unchecked);
	EXPECT_FALSE(KeyDown(EKeys::SpaceBar));
	ASSERT_TRUE(App().SetKeyboardFocus(Box));
	EXPECT_TRUE(KeyDown(EKeys::SpaceBar));
	EXPECT_FALSE(Box->IsChecked());
	EXPECT_TRUE(KeyUp(EKeys::SpaceBar));
	EXPECT_TRUE(Box->IsChecked());
	KeyDown(EKeys::Enter);
	KeyUp(EKeys::Enter);
	EXPECT_FALSE(Box->IsChecked());
	KeyDown(EKeys::A);
	EXPECT_FALSE(KeyUp(EKeys::A));
	EXPECT_EQ(Told.Num(), 2);
}

TEST_F(FCheckBoxTest, TogglesWhenItsContentIsClicked)
{
	TSharedPtr<STextBlock> Caption;
	const TSharedRef<SCheckBox> Box = SNew(SCheckBox)[SAssignNew(Caption, STextBlock)];
	Click(Caption.ToSharedRef());
	EXPECT_TRUE(Box->IsChecked());
}

TEST_F(FCheckBoxTest, DoesNothingWhileDisabledOrForOtherButtons)
{
	const TSharedRef<SCheckBox> Box = Make(ECheckBoxState::Unchecked);
	MouseDown(Box, EKeys::RightMouseButton);
	MouseUp(Box, EKeys::RightMouseButton);
	Box->SetEnabled(false);
	Click(Box);
	EXPECT_FALSE(Box->IsChecked());
	EXPECT_EQ(Told.Num(), 0);
}

TEST_F(FCheckBoxTest, DoesNotToggleWhenTheMouseIsReleasedElsewhere)
{
	TSharedPtr<SCheckBox> First;
	TSharedPtr<SCheckBox> Second;
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[SAssignNew(First, SCheckBox)]
		+ SVerticalBox::Slot()[SAssignNew(Second, SCheckBox)];
	// clang-format on
	MouseDown(First.ToSharedRef());
	MouseUp(Second.ToSharedRef());
	EXPECT_FALSE(First->IsChecked());
	EXPECT_FALSE(Second->IsChecked());
}

TEST_F(FCheckBoxTest, StandsLeftOfItsContent)
{
	TSharedPtr<STextBlock> Caption;
	const TSharedRef<SCheckBox> Empty = SNew(SCheckBox);
	const TSharedRef<SCheckBox> Box =
		SNew(SCheckBox)[SAssignNew(Caption, STextBlock).Text(FText::FromString(TEXT("Caption")))];
	Empty->SlatePrepass(1.0f);
	Box->SlatePrepass(1.0f);
	EXPECT_FLOAT_EQ(Empty->GetDesiredSize().X, 16.0f);
	EXPECT_FLOAT_EQ(Empty->GetDesiredSize().Y, 16.0f);
	EXPECT_FLOAT_EQ(Box->GetDesiredSize().X, 16.0f + Caption->GetDesiredSize().X);
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Caption.ToSharedRef(), Path));
	EXPECT_FLOAT_EQ(Path.Widgets.Last().Geometry.GetAbsolutePosition().X, 16.0f);
}
