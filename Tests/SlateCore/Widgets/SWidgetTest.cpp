// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestWidgets.h"
#include "Widgets/SOverlay.h"

namespace
{
	/** A widget that is put together from others, as those of a plugin are. */
	class STestCompound : public SCompoundWidget
	{
	public:
		SLATE_BEGIN_ARGS(STestCompound) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			ChildSlot.HAlign(HAlign_Right).Padding(2, 4)[InArgs._Content.Widget];
		}
		void SetContent(const TSharedRef<SWidget>& Content) { ChildSlot[Content]; }
	};
}

TEST(SWidget, KnowsItsClass)
{
	EXPECT_EQ(MakeLeaf(1.0f, 1.0f)->GetType(), FName("STestLeaf"));
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	EXPECT_TRUE(Box->GetTypeAsString().Equals(TEXT("SVerticalBox")));
}

TEST(SWidget, HasTheWidgetWhoseSlotItStandsInAsParent)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(1.0f, 1.0f);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Leaf];
	const TSharedRef<STestCompound> Compound = SNew(STestCompound)[Box];
	EXPECT_TRUE(Leaf->GetParentWidget() == Box);
	EXPECT_TRUE(Box->GetParentWidget() == Compound);
	EXPECT_FALSE(Compound->GetParentWidget().IsValid());
}

TEST(SWidget, HasNoParentAfterItWasReplaced)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(1.0f, 1.0f);
	const TSharedRef<STestCompound> Compound = SNew(STestCompound)[Leaf];
	Compound->SetContent(MakeLeaf(2.0f, 2.0f));
	EXPECT_FALSE(Leaf->GetParentWidget().IsValid());
}

TEST(SWidget, StaysTheChildOfItsNewParentWhenTheFormerOneLetsGo)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(1.0f, 1.0f);
	const TSharedRef<STestCompound> Former = SNew(STestCompound)[Leaf];
	const TSharedRef<STestCompound> Present = SNew(STestCompound)[Leaf];
	Former->SetContent(SNullWidget::NullWidget);
	EXPECT_TRUE(Leaf->GetParentWidget() == Present);
}

TEST(SWidget, DiesWithItsParentUnlessSomebodyHoldsIt)
{
	TWeakPtr<SWidget> Child;
	{
		const TSharedRef<STestLeaf> Leaf = MakeLeaf(1.0f, 1.0f);
		Child = Leaf;
		SNew(SVerticalBox) + SVerticalBox::Slot()[SNew(STestCompound)[Leaf]];
	}
	EXPECT_FALSE(Child.IsValid());
}

TEST(SWidget, IsVisibleAndEnabledUnlessToldOtherwise)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(1.0f, 1.0f);
	EXPECT_TRUE(Leaf->GetVisibility() == EVisibility::Visible);
	EXPECT_TRUE(Leaf->IsEnabled());
}

TEST(SWidget, TakesNoFocusOfItsOwnAccord)
{
	EXPECT_FALSE(MakeLeaf(1.0f, 1.0f)->SupportsKeyboardFocus());
	EXPECT_FALSE(MakeLeaf(1.0f, 1.0f)->HasKeyboardFocus());
}

TEST(SWidget, HandsTheWidthCapDownLessThePaddings)
{
	class SCapped : public STestCompound
	{
	protected:
		virtual float ComputeChildWidthCap(int32 /*ChildIndex*/, float /*OwnWidthCap*/) const override
		{
			return 300.0f;
		}
	};
	const TSharedRef<SGreedyLeaf> Greedy = SNew(SGreedyLeaf);
	const TSharedRef<SCapped> Capped = MakeShared<SCapped>();
	// clang-format off
	Capped->SetContent(SNew(SVerticalBox) + SVerticalBox::Slot().Padding(10, 0)
		[SNew(SOverlay) + SOverlay::Slot().Padding(1, 0, 2, 0)[SNew(STestCompound)[Greedy]]]);
	// clang-format on
	Capped->SlatePrepass(1.0f);
	EXPECT_EQ(Greedy->GetDesiredSize().X, 300.0f - 20.0f - 3.0f - 4.0f);
}

TEST(SWidget, HasNoWidthCapWhereNothingLimitsIt)
{
	const TSharedRef<SGreedyLeaf> Greedy = SNew(SGreedyLeaf);
	(SNew(SVerticalBox) + SVerticalBox::Slot()[Greedy])->SlatePrepass(1.0f);
	EXPECT_EQ(Greedy->GetDesiredSize().X, 1.0f);
}

TEST(SCompoundWidget, ArrangesItsChildWithinTheSlot)
{
	const TSharedRef<STestCompound> Compound = SNew(STestCompound)[MakeLeaf(10.0f, 20.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Compound, 100.0f, 50.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{88.0f, 4.0f, 10.0f, 42.0f}));
	EXPECT_EQ(Compound->GetDesiredSize(), FVector2D(14.0f, 28.0f));
}

TEST(SCompoundWidget, HasNoChildWhileItsSlotIsEmpty)
{
	const TSharedRef<STestCompound> Compound = SNew(STestCompound);
	EXPECT_EQ(Compound->GetChildren()->Num(), 0);
	Compound->SetContent(MakeLeaf(1.0f, 1.0f));
	EXPECT_EQ(Compound->GetChildren()->Num(), 1);
}

TEST(SLeafWidget, HasNoChildren)
{
	EXPECT_EQ(MakeLeaf(1.0f, 1.0f)->GetChildren()->Num(), 0);
}

TEST(FNoChildrenDeathTest, DiesWhenAskedForAChild)
{
	EXPECT_EXIT(MakeLeaf(1.0f, 1.0f)->GetChildren()->GetSlotAt(0), ::testing::ExitedWithCode(3), "asked for child 0");
}
