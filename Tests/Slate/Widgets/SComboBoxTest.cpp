// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include <vector>

#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	typedef TSharedPtr<FString> FOption;
	typedef SComboBox<FOption> SOptionBox;

	/** Offers A, B and C, and notes what the box tells. */
	class FComboBoxTest : public FSlateFixture
	{
	protected:
		struct FTold
		{
			FOption Item;
			ESelectInfo::Type Info;
			bool operator==(const FTold& Other) const { return Item == Other.Item && Info == Other.Info; }
		};

		TSharedRef<SOptionBox> Make(const FOption& Initial = nullptr)
		{
			// clang-format off
			return SNew(SOptionBox)
				.OptionsSource(&Options)
				.InitiallySelectedItem(Initial)
				.OnSelectionChanged_Raw(this, &FComboBoxTest::OnSelected)
				.OnGenerateWidget_Raw(this, &FComboBoxTest::MakeOption)
				.OnComboBoxOpening_Raw(this, &FComboBoxTest::OnOpening)
				[
					SNew(STextBlock).Text(FText::FromString(TEXT("Closed")))
				];
			// clang-format on
		}
		/** One that has the focus. */
		TSharedRef<SOptionBox> MakeFocused(const FOption& Initial = nullptr)
		{
			const TSharedRef<SOptionBox> Box = Make(Initial);
			EXPECT_TRUE(App().SetKeyboardFocus(Box));
			return Box;
		}
		void OnSelected(FOption Item, ESelectInfo::Type Info) { Told.push_back({Item, Info}); }
		TSharedRef<SWidget> MakeOption(FOption Item) { return SNew(STextBlock).Text(FText::FromString(*Item)); }
		void OnOpening() { ++Openings; }

		FOption A = MakeShared<FString>(TEXT("A"));
		FOption B = MakeShared<FString>(TEXT("B"));
		FOption C = MakeShared<FString>(TEXT("C"));
		TArray<FOption> Options = {A, B, C};
		std::vector<FTold> Told;
		int32 Openings = 0;
	};

	FString TextOf(const TSharedRef<SWidget>& Widget)
	{
		return Widget->GetType() == FName("STextBlock")
			? static_cast<const STextBlock&>(Widget.Get()).GetText().ToString()
			: FString();
	}
}

TEST_F(FComboBoxTest, BeginsWithItsInitialItemWithoutTelling)
{
	const TSharedRef<SOptionBox> Box = Make(B);
	EXPECT_EQ(Box->GetSelectedItem(), B);
	EXPECT_EQ(Box->GetSelectedOption(), 1);
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_TRUE(Told.empty());
	EXPECT_EQ(Openings, 0);
}

TEST_F(FComboBoxTest, HasNoSelectionUnlessToldOtherwise)
{
	EXPECT_FALSE(Make()->GetSelectedItem().IsValid());
	EXPECT_EQ(Make()->GetSelectedOption(), INDEX_NONE);
	const TSharedRef<SOptionBox> Bare = SNew(SOptionBox);
	EXPECT_EQ(Bare->GetNumOptions(), 0);
	EXPECT_EQ(Bare->GetSelectedOption(), INDEX_NONE);
	EXPECT_FALSE(Bare->ChooseOption(0, ESelectInfo::OnMouseClick));
	EXPECT_EQ(Bare->GenerateOption(0), SNullWidget::NullWidget);
}

TEST_F(FComboBoxTest, TellsOfAnItemThatCodeSelects)
{
	const TSharedRef<SOptionBox> Box = Make(A);
	Box->SetSelectedItem(C);
	Box->SetSelectedItem(C);
	EXPECT_EQ(Box->GetSelectedItem(), C);
	EXPECT_EQ(Box->GetSelectedOption(), 2);
	EXPECT_EQ(Told, (std::vector<FTold>{{C, ESelectInfo::Direct}}));
}

TEST_F(FComboBoxTest, TellsThatNothingIsSelectedAnyMore)
{
	const TSharedRef<SOptionBox> Box = Make(A);
	Box->ClearSelection();
	Box->ClearSelection();
	EXPECT_FALSE(Box->GetSelectedItem().IsValid());
	EXPECT_EQ(Told, (std::vector<FTold>{{nullptr, ESelectInfo::Direct}}));
	Box->SetSelectedItem(B);
	Box->SetSelectedItem(nullptr);
	EXPECT_EQ(Told.size(), 3u);
	EXPECT_EQ(Box->GetSelectedOption(), INDEX_NONE);
}

TEST_F(FComboBoxTest, TakesAnItemThatItDoesNotOffer)
{
	const FOption Other = MakeShared<FString>(TEXT("A"));
	const TSharedRef<SOptionBox> Box = Make();
	Box->SetSelectedItem(Other);
	EXPECT_EQ(Box->GetSelectedItem(), Other);
	EXPECT_EQ(Box->GetSelectedOption(), INDEX_NONE);
	EXPECT_EQ(Told.size(), 1u);
}

TEST_F(FComboBoxTest, TellsWhatTheUserChoosesAndHow)
{
	const TSharedRef<SOptionBox> Box = Make(A);
	EXPECT_TRUE(Box->ChooseOption(2, ESelectInfo::OnMouseClick));
	EXPECT_TRUE(Box->ChooseOption(1, ESelectInfo::OnKeyPress));
	EXPECT_EQ(Told, (std::vector<FTold>{{C, ESelectInfo::OnMouseClick}, {B, ESelectInfo::OnKeyPress}}));
	EXPECT_EQ(Box->GetSelectedItem(), B);
}

TEST_F(FComboBoxTest, SaysNothingOfTheItemThatIsSelectedAlready)
{
	const TSharedRef<SOptionBox> Box = Make(B);
	EXPECT_TRUE(Box->ChooseOption(1, ESelectInfo::OnMouseClick));
	EXPECT_TRUE(Told.empty());
}

TEST_F(FComboBoxTest, HasTheNewItemWhenItTells)
{
	FOption Seen;
	TSharedPtr<SOptionBox> Box;
	const auto Look = [&](FOption, ESelectInfo::Type) { Seen = Box->GetSelectedItem(); };
	SAssignNew(Box, SOptionBox).OptionsSource(&Options).OnSelectionChanged_Lambda(Look);
	Box->ChooseOption(1, ESelectInfo::OnMouseClick);
	EXPECT_EQ(Seen, B);
}

TEST_F(FComboBoxTest, SurvivesThatItsListenerLetsGoOfIt)
{
	TSharedPtr<SOptionBox> Box;
	TWeakPtr<SOptionBox> Watched;
	bool bLived = false;
	const auto LetGo = [&](FOption, ESelectInfo::Type)
	{
		Box.Reset();
		bLived = Watched.IsValid();
	};
	SAssignNew(Box, SOptionBox).OptionsSource(&Options).OnSelectionChanged_Lambda(LetGo);
	Watched = Box;
	SComboButton* Button = Box.Get();
	EXPECT_TRUE(Button->ChooseOption(1, ESelectInfo::OnMouseClick));
	EXPECT_TRUE(bLived);
	EXPECT_FALSE(Watched.IsValid());
}

TEST_F(FComboBoxTest, ReadsItsOptionsAnewEachTime)
{
	const TSharedRef<SOptionBox> Box = Make(C);
	Options.RemoveAt(0);
	EXPECT_EQ(Box->GetNumOptions(), 2);
	EXPECT_EQ(Box->GetSelectedOption(), 1);
	EXPECT_TRUE(TextOf(Box->GenerateOption(0)).Equals(TEXT("B")));
	Options.Empty();
	Box->RefreshOptions();
	EXPECT_EQ(Box->GetNumOptions(), 0);
	EXPECT_EQ(Box->GetSelectedOption(), INDEX_NONE);
	EXPECT_EQ(Box->GetSelectedItem(), C);
	EXPECT_FALSE(Box->ChooseOption(0, ESelectInfo::OnMouseClick));
}

TEST_F(FComboBoxTest, MakesAWidgetForEachOption)
{
	const TSharedRef<SOptionBox> Box = Make();
	EXPECT_TRUE(TextOf(Box->GenerateOption(0)).Equals(TEXT("A")));
	EXPECT_TRUE(TextOf(Box->GenerateOption(2)).Equals(TEXT("C")));
	EXPECT_FALSE(Box->GenerateOption(0) == Box->GenerateOption(0));
	EXPECT_EQ(Box->GenerateOption(-1), SNullWidget::NullWidget);
	EXPECT_EQ(Box->GenerateOption(3), SNullWidget::NullWidget);
	const TSharedRef<SOptionBox> Mute = SNew(SOptionBox).OptionsSource(&Options);
	EXPECT_EQ(Mute->GenerateOption(0), SNullWidget::NullWidget);
}

TEST_F(FComboBoxTest, RefusesToChooseWhatIsNotThere)
{
	const TSharedRef<SOptionBox> Box = Make(A);
	EXPECT_FALSE(Box->ChooseOption(-1, ESelectInfo::OnMouseClick));
	EXPECT_FALSE(Box->ChooseOption(3, ESelectInfo::OnMouseClick));
	EXPECT_EQ(Box->GetSelectedItem(), A);
	EXPECT_TRUE(Told.empty());
}

TEST_F(FComboBoxTest, TakesEmptyOptionsForNone)
{
	Options = {nullptr, A, nullptr, nullptr, B, nullptr};
	const TSharedRef<SOptionBox> Box = MakeFocused();
	EXPECT_EQ(Box->GetNumOptions(), 6);
	EXPECT_EQ(Box->GetSelectedOption(), INDEX_NONE);
	EXPECT_EQ(Box->GenerateOption(2), SNullWidget::NullWidget);
	EXPECT_FALSE(Box->ChooseOption(2, ESelectInfo::OnMouseClick));
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetSelectedOption(), 1);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetSelectedOption(), 4);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetSelectedOption(), 4);
	KeyDown(EKeys::Up);
	KeyDown(EKeys::Up);
	EXPECT_EQ(Box->GetSelectedOption(), 1);
	EXPECT_EQ(Told.size(), 3u);
}

TEST_F(FComboBoxTest, ChoosesTheNextAndTheFormerOptionByArrowKeys)
{
	const TSharedRef<SOptionBox> Box = MakeFocused(A);
	EXPECT_TRUE(KeyDown(EKeys::Down));
	EXPECT_TRUE(KeyDown(EKeys::Down));
	EXPECT_TRUE(KeyDown(EKeys::Down));
	EXPECT_TRUE(KeyDown(EKeys::Up));
	const auto Info = ESelectInfo::OnNavigation;
	EXPECT_EQ(Told, (std::vector<FTold>{{B, Info}, {C, Info}, {B, Info}}));
	KeyDown(EKeys::Up);
	EXPECT_TRUE(KeyDown(EKeys::Up));
	EXPECT_EQ(Box->GetSelectedItem(), A);
	EXPECT_EQ(Told.size(), 4u);
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_EQ(Openings, 0);
}

TEST_F(FComboBoxTest, ChoosesOnceByArrowKeyWhereAnItemStandsTwice)
{
	Options = {A, B, A, C};
	const TSharedRef<SOptionBox> Box = MakeFocused(B);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Told, (std::vector<FTold>{{A, ESelectInfo::OnNavigation}}));
	EXPECT_EQ(Box->GetSelectedOption(), 0);
}

TEST_F(FComboBoxTest, ChoosesTheFirstOptionByArrowKeyWhereNoneIsSelected)
{
	const TSharedRef<SOptionBox> Box = MakeFocused();
	KeyDown(EKeys::Up);
	EXPECT_EQ(Box->GetSelectedOption(), INDEX_NONE);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetSelectedItem(), A);
}

TEST_F(FComboBoxTest, OpensAndClosesByClicks)
{
	const TSharedRef<SOptionBox> Box = Make();
	Click(Box);
	EXPECT_TRUE(Box->IsOpen());
	EXPECT_EQ(Openings, 1);
	Click(Box);
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_EQ(Openings, 1);
	Box->SetEnabled(false);
	Click(Box);
	EXPECT_FALSE(Box->IsOpen());
}

TEST_F(FComboBoxTest, OpensAndClosesByKey)
{
	const TSharedRef<SOptionBox> Box = MakeFocused();
	for (const FKey& Key : {EKeys::SpaceBar, EKeys::Enter})
	{
		for (const bool bOpens : {true, false})
		{
			EXPECT_TRUE(KeyDown(Key));
			EXPECT_EQ(Box->IsOpen(), !bOpens);
			KeyUp(Key);
			EXPECT_EQ(Box->IsOpen(), bOpens);
		}
	}
	EXPECT_EQ(Openings, 2);
	EXPECT_FALSE(KeyDown(EKeys::A));
}

TEST_F(FComboBoxTest, AnnouncesThatItOpensBeforeItIsOpen)
{
	bool bWasOpen = true;
	TSharedPtr<SOptionBox> Box;
	SAssignNew(Box, SOptionBox).OnComboBoxOpening_Lambda([&]() { bWasOpen = Box->IsOpen(); });
	Box->SetIsOpen(true);
	EXPECT_FALSE(bWasOpen);
	EXPECT_TRUE(Box->IsOpen());
}

TEST_F(FComboBoxTest, AnnouncesNothingWhenItIsOpenAlreadyOrCloses)
{
	const TSharedRef<SOptionBox> Box = Make();
	Box->SetIsOpen(true);
	Box->SetIsOpen(true);
	Box->SetIsOpen(false);
	EXPECT_EQ(Openings, 1);
}

TEST_F(FComboBoxTest, ClosesWithAChoiceButNotByNavigation)
{
	const TSharedRef<SOptionBox> Box = MakeFocused(A);
	Box->SetIsOpen(true);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetSelectedItem(), B);
	EXPECT_TRUE(Box->IsOpen());
	Box->ChooseOption(0, ESelectInfo::OnMouseClick);
	EXPECT_FALSE(Box->IsOpen());
	Box->SetIsOpen(true);
	Box->ChooseOption(0, ESelectInfo::OnMouseClick);
	EXPECT_FALSE(Box->IsOpen());
	Box->SetIsOpen(true);
	Box->SetSelectedItem(C);
	EXPECT_FALSE(Box->IsOpen());
}

TEST_F(FComboBoxTest, ClosesWhenTheUserGoesElsewhere)
{
	TSharedPtr<SButton> Button;
	const TSharedRef<SOptionBox> Box = Make();
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[Box]
		+ SVerticalBox::Slot()[SAssignNew(Button, SButton)];
	// clang-format on
	Click(Box);
	ASSERT_TRUE(Box->IsOpen());
	EXPECT_TRUE(HasFocus(Box));
	MouseDown(Button.ToSharedRef());
	EXPECT_FALSE(Box->IsOpen());
	MouseUp(Button.ToSharedRef());
	MouseDown(Box);
	MouseUp(Button.ToSharedRef());
	EXPECT_FALSE(Box->IsOpen());
}

TEST_F(FComboBoxTest, ForgetsAHeldKeyWithTheFocus)
{
	const TSharedRef<SOptionBox> Box = MakeFocused();
	KeyDown(EKeys::SpaceBar);
	App().ClearKeyboardFocus();
	ASSERT_TRUE(App().SetKeyboardFocus(Box));
	KeyUp(EKeys::SpaceBar);
	EXPECT_FALSE(Box->IsOpen());
}

TEST_F(FComboBoxTest, LeavesRoomAroundItsContentForTheArrow)
{
	const TSharedRef<STextBlock> Content = SNew(STextBlock).Text(FText::FromString(TEXT("Long enough for a line")));
	const TSharedRef<SOptionBox> Box = SNew(SOptionBox).ContentPadding(FMargin(2.0f))[Content];
	Box->SlatePrepass(1.0f);
	// Padding left and right, and the arrow of 8 within a padding of 2.
	EXPECT_FLOAT_EQ(Box->GetDesiredSize().X, Content->GetDesiredSize().X + 4.0f + 12.0f);
	EXPECT_FLOAT_EQ(Box->GetDesiredSize().Y, Content->GetDesiredSize().Y + 4.0f);
	const TSharedRef<SOptionBox> Other = SNew(SOptionBox)[Content];
	Other->SlatePrepass(1.0f);
	EXPECT_FLOAT_EQ(Other->GetDesiredSize().X, Content->GetDesiredSize().X + 8.0f + 12.0f);
	EXPECT_FLOAT_EQ(Other->GetDesiredSize().Y, Content->GetDesiredSize().Y + 4.0f);
}

TEST_F(FComboBoxTest, PutsItsContentAtTheLeftHalfwayDown)
{
	const TSharedRef<STextBlock> Content = SNew(STextBlock).Text(FText::FromString(TEXT("Text")));
	const TSharedRef<SWidget> Root = SNew(SBox).HeightOverride(FOptionalSize(100.0f))[SNew(SOptionBox)[Content]];
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Content, Path));
	const FVector2D Position = Path.Widgets.Last().Geometry.GetAbsolutePosition();
	EXPECT_FLOAT_EQ(Position.X, 4.0f);
	EXPECT_FLOAT_EQ(Position.Y, (100.0f - Content->GetDesiredSize().Y) / 2.0f);
}

RC_GTEST_FIXTURE_PROP(FComboBoxTest, SelectsLikeAPlainVariable, ())
{
	Told.clear();
	Options = {A, nullptr, B, C, A};
	const TSharedRef<SOptionBox> Box = Make();
	FOption Selected;
	size_t Changes = 0;
	const FOption ByCode[] = {nullptr, A, C};
	for (const int32 Step : *rc::gen::container<std::vector<int32>>(rc::gen::inRange<int32>(-3, 8)))
	{
		const bool bByUser = Step >= 0;
		const FOption Wanted = !bByUser ? ByCode[-1 - Step] : Options.IsValidIndex(Step) ? Options[Step] : nullptr;
		const bool bChosen = bByUser && Box->ChooseOption(Step, ESelectInfo::OnMouseClick);
		RC_ASSERT(bChosen == (bByUser && Wanted.IsValid()));
		if (!bByUser)
		{
			Box->SetSelectedItem(Wanted);
		}
		if ((bChosen || !bByUser) && !(Wanted == Selected))
		{
			Selected = Wanted;
			++Changes;
			RC_ASSERT(Told.back().Item == Wanted);
			RC_ASSERT(Told.back().Info == (bByUser ? ESelectInfo::OnMouseClick : ESelectInfo::Direct));
		}
		RC_ASSERT(Told.size() == Changes);
		RC_ASSERT(Box->GetSelectedItem() == Selected);
	}
}
