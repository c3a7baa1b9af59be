// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "../SlateCore/TestWidgets.h"
#include "Brushes/SlateImageBrush.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

TEST(SBox, WantsItsOverridesWhateverIsInIt)
{
	const TSharedRef<SBox> Box =
		SNew(SBox).WidthOverride(300).HeightOverride(20).MaxDesiredWidth(100)[MakeLeaf(900.0f, 90.0f)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(300.0f, 20.0f));
}

TEST(SBox, WantsAtMostItsMaximum)
{
	const TSharedRef<SBox> Wide = SNew(SBox).MaxDesiredWidth(300)[MakeLeaf(900.0f, 90.0f)];
	Wide->SlatePrepass(1.0f);
	EXPECT_EQ(Wide->GetDesiredSize(), FVector2D(300.0f, 90.0f));
	const TSharedRef<SBox> Narrow = SNew(SBox).MaxDesiredWidth(300)[MakeLeaf(90.0f, 90.0f)];
	Narrow->SlatePrepass(1.0f);
	EXPECT_EQ(Narrow->GetDesiredSize(), FVector2D(90.0f, 90.0f));
}

TEST(SBox, LimitsTheWidthOfWhatIsInIt)
{
	const TSharedRef<SGreedyLeaf> Greedy = SNew(SGreedyLeaf);
	(SNew(SBox).MaxDesiredWidth(200)[Greedy])->SlatePrepass(1.0f);
	EXPECT_EQ(Greedy->GetDesiredSize().X, 200.0f);
	(SNew(SBox).MaxDesiredWidth(200)[SNew(SBox).MaxDesiredWidth(250)[Greedy]])->SlatePrepass(1.0f);
	EXPECT_EQ(Greedy->GetDesiredSize().X, 200.0f);
}

TEST(SBox, LetsItsContentFillIt)
{
	const FArrangedChildren Arranged = ArrangeIn(SNew(SBox).WidthOverride(300)[MakeLeaf(10.0f, 10.0f)], 300.0f, 50.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 300.0f, 50.0f}));
}

// clang-format off
TEST(SScrollBox, StacksItsChildrenFromTheTop)
{
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox)
		+ SScrollBox::Slot().Padding(0, 0, 0, 5)[MakeLeaf(10.0f, 30.0f)]
		+ SScrollBox::Slot().HAlign(HAlign_Center)[MakeLeaf(20.0f, 40.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 100.0f, 500.0f);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 100.0f, 30.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{40.0f, 35.0f, 20.0f, 40.0f}));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(20.0f, 75.0f));
}

TEST(SScrollBox, CentresASingleChildInBothDirections)
{
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox)
		+ SScrollBox::Slot().HAlign(HAlign_Center).VAlign(VAlign_Center)[MakeLeaf(300.0f, 400.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 420.0f, 800.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{60.0f, 200.0f, 300.0f, 400.0f}));
}

TEST(SScrollBox, SharesTheSpareHeightAmongTheSlotsThatTakeIt)
{
	const TSharedRef<STestLeaf> Gone = MakeLeaf(10.0f, 10.0f);
	Gone->SetVisibility(EVisibility::Collapsed);
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox)
		+ SScrollBox::Slot()[MakeLeaf(10.0f, 20.0f)]
		+ SScrollBox::Slot().VAlign(VAlign_Center)[MakeLeaf(10.0f, 20.0f)]
		+ SScrollBox::Slot().VAlign(VAlign_Center)[Gone]
		+ SScrollBox::Slot().VAlign(VAlign_Bottom)[MakeLeaf(10.0f, 20.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 100.0f);
	ASSERT_EQ(Arranged.Num(), 3);
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{0.0f, 30.0f, 10.0f, 20.0f}));
	EXPECT_EQ(ToRect(Arranged[2].Geometry), (FTestRect{0.0f, 80.0f, 10.0f, 20.0f}));
}

TEST(SScrollBox, LetsWhatDoesNotFitReachBeyondTheLowerEdge)
{
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox)
		+ SScrollBox::Slot().VAlign(VAlign_Center)[MakeLeaf(10.0f, 900.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 100.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 10.0f, 900.0f}));
}

namespace
{
	/** A page like those that plugins show in a tab: a centred column of fixed width, with two pages in one place. */
	class FColumnPageTest : public FSlateFixture
	{
	public:
		FColumnPageTest()
		{
			const FSlateFontInfo Plain = FCoreStyle::GetDefaultFontStyle("Regular", 10);
			FirstPage = SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight().Padding(0, 0, 0, 10)
				[
					SNew(STextBlock).Text(FText::FromString(TEXT("Name:"))).Font(Plain)
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(NameBox, SEditableTextBox).MinDesiredWidth(300)
				]
				+ SVerticalBox::Slot().AutoHeight().Padding(0, 5, 0, 0)
				[
					SAssignNew(Warning, STextBlock)
						.Text(FText::FromString(TEXT("Placeholder")))
						.Font(FCoreStyle::GetDefaultFontStyle("Italic", 8))
						.Visibility(EVisibility::Hidden)
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Button, SButton)[SNew(STextBlock).Text(FText::FromString(TEXT("Create")))]
				];
			SecondPage = SNew(SVerticalBox).Visibility(EVisibility::Collapsed)
				+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(1000.0f, 10.0f)];
			Tab = SNew(SDockTab)
			[
				SNew(SScrollBox)
				+ SScrollBox::Slot().HAlign(HAlign_Center).VAlign(VAlign_Center)
				[
					SAssignNew(Column, SBox).WidthOverride(300).MaxDesiredWidth(300)
					[
						SNew(SVerticalBox)
						+ SVerticalBox::Slot().AutoHeight().Padding(0, 0, 0, 50)[MakeHeader(Plain)]
						+ SVerticalBox::Slot()
						[
							SNew(SOverlay)
							+ SOverlay::Slot()[FirstPage.ToSharedRef()]
							+ SOverlay::Slot()[SecondPage.ToSharedRef()]
						]
					]
				]
			];
		}
		TSharedRef<SWidget> MakeHeader(const FSlateFontInfo& Plain)
		{
			return SNew(SVerticalBox)
				+ SVerticalBox::Slot().HAlign(HAlign_Center).Padding(0, 0, 0, 30)
				[
					SAssignNew(Icon, SImage).Image(&Brush)
				]
				+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)
				[
					SAssignNew(Description, STextBlock)
						.Text(FText::FromString(
							TEXT("A text that is much too long to stand on one line of the column and wraps.")))
						.Font(Plain)
						.AutoWrapText(true)
				];
		}
		FTestRect RectOf(const TSharedPtr<SWidget>& Widget)
		{
			FWidgetPath Path;
			App().GeneratePathToWidgetUnchecked(Widget.ToSharedRef(), Path, EVisibility::All);
			return Path.IsValid() ? ToRect(Path.Widgets.Last().Geometry) : FTestRect{-1.0f, -1.0f, -1.0f, -1.0f};
		}

		FSlateImageBrush Brush{TEXT("icon.png"), FVector2D(128.0f, 128.0f)};
		TSharedPtr<SDockTab> Tab;
		TSharedPtr<SBox> Column;
		TSharedPtr<SVerticalBox> FirstPage;
		TSharedPtr<SVerticalBox> SecondPage;
		TSharedPtr<SImage> Icon;
		TSharedPtr<STextBlock> Description;
		TSharedPtr<SEditableTextBox> NameBox;
		TSharedPtr<STextBlock> Warning;
		TSharedPtr<SButton> Button;
	};
}
// clang-format on

TEST_F(FColumnPageTest, PutsEverythingWhereItsPaddingsAndHeightsSay)
{
	// Line heights: size 10 is 13 pixels and 15 high, size 9 is 12 and 14, size 8 is 11 and 13.
	// Header 128 + 30 + 2 * 15 = 188; page 15 + 10 + (14 + 4) + 5 + 13 + (14 + 4) = 79; column 188 + 50 + 79 = 317.
	const float Top = (800.0f - 317.0f) / 2.0f;
	EXPECT_EQ(RectOf(Column), (FTestRect{60.0f, Top, 300.0f, 317.0f}));
	EXPECT_EQ(RectOf(Icon), (FTestRect{146.0f, Top, 128.0f, 128.0f}));
	EXPECT_EQ(RectOf(NameBox), (FTestRect{60.0f, Top + 263.0f, 300.0f, 18.0f}));
	EXPECT_EQ(RectOf(Warning), (FTestRect{60.0f, Top + 286.0f, 300.0f, 13.0f}));
	EXPECT_EQ(RectOf(Button), (FTestRect{60.0f, Top + 299.0f, 300.0f, 18.0f}));
}

TEST_F(FColumnPageTest, WrapsTheDescriptionWithinTheColumn)
{
	const FTestRect Rect = RectOf(Description);
	EXPECT_EQ(Rect.Height, 30.0f);
	EXPECT_LE(Rect.Width, 300.0f);
	EXPECT_FLOAT_EQ(Rect.X + Rect.Width / 2.0f, 210.0f);
}

TEST_F(FColumnPageTest, KeepsItsWidthWhateverIsTyped)
{
	FString Long;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Long.AppendChar(TEXT('W'));
	}
	NameBox->SetText(FText::FromString(Long));
	EXPECT_EQ(RectOf(NameBox).Width, 300.0f);
	EXPECT_EQ(RectOf(Column).Width, 300.0f);
}

TEST_F(FColumnPageTest, DoesNotMoveWhenTheHiddenLineShows)
{
	const FTestRect Before = RectOf(Button);
	Warning->SetVisibility(EVisibility::Visible);
	EXPECT_EQ(RectOf(Button), Before);
}

TEST_F(FColumnPageTest, ShrinksToTheOtherPage)
{
	FirstPage->SetVisibility(EVisibility::Collapsed);
	SecondPage->SetVisibility(EVisibility::Visible);
	EXPECT_EQ(RectOf(Column).Height, 188.0f + 50.0f + 10.0f);
	EXPECT_EQ(RectOf(SecondPage).Width, 300.0f);
	EXPECT_EQ(RectOf(Button).Width, -1.0f);
}
