// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "TestWidgets.h"

// clang-format off
TEST(SVerticalBox, WantsTheSumOfHeightsAndTheGreatestWidth)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().Padding(0, 0, 0, 50)[MakeLeaf(100.0f, 20.0f)]
		+ SVerticalBox::Slot()[MakeLeaf(70.0f, 30.0f)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(100.0f, 100.0f));
}

TEST(SVerticalBox, GivesAutoSlotsTheirDesiredHeightAndStretchedOnesTheRest)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().Padding(0, 0, 0, 10)[MakeLeaf(100.0f, 20.0f)]
		+ SVerticalBox::Slot()[MakeLeaf(70.0f, 30.0f)]
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(10.0f, 5.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 200.0f, 135.0f);
	ASSERT_EQ(Arranged.Num(), 3);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 200.0f, 20.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{0.0f, 30.0f, 200.0f, 100.0f}));
	EXPECT_EQ(ToRect(Arranged[2].Geometry), (FTestRect{0.0f, 130.0f, 200.0f, 5.0f}));
}

TEST(SVerticalBox, SharesTheRestByWeight)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f)[MakeLeaf(1.0f, 90.0f)]
		+ SVerticalBox::Slot().FillHeight(3.0f)[MakeLeaf(1.0f, 1.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 100.0f);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 10.0f, 25.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{0.0f, 25.0f, 10.0f, 75.0f}));
}

TEST(SVerticalBox, AlignsWithinTheSlot)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().HAlign(HAlign_Center).VAlign(VAlign_Bottom)[MakeLeaf(40.0f, 10.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 100.0f, 50.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{30.0f, 40.0f, 40.0f, 10.0f}));
}

TEST(SVerticalBox, LetsACollapsedChildAndItsPaddingVanish)
{
	const TSharedRef<STestLeaf> Middle = MakeLeaf(10.0f, 30.0f);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(10.0f, 30.0f)]
		+ SVerticalBox::Slot().AutoHeight().Padding(0, 6, 0, 6)[Middle]
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(10.0f, 30.0f)];
	Middle->SetVisibility(EVisibility::Collapsed);
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 200.0f, EVisibility::All);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{0.0f, 30.0f, 10.0f, 30.0f}));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(10.0f, 60.0f));
}

TEST(SVerticalBox, KeepsTheHiddenChildsPlace)
{
	const TSharedRef<STestLeaf> First = MakeLeaf(10.0f, 30.0f);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().Padding(0, 5, 0, 0)[First]
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(10.0f, 30.0f)];
	First->SetVisibility(EVisibility::Hidden);
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 200.0f);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 35.0f, 10.0f, 30.0f}));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(10.0f, 65.0f));
}

TEST(SVerticalBox, GivesStretchedSlotsNothingWhereThereIsNoRoom)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[MakeLeaf(1.0f, 50.0f)]
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(1.0f, 80.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 10.0f, 40.0f);
	ASSERT_EQ(Arranged.Num(), 2);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{0.0f, 0.0f, 10.0f, 0.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{0.0f, 0.0f, 10.0f, 80.0f}));
}

TEST(SVerticalBox, ShowsHowItsSlotsWereSet)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center).Padding(1, 2, 3, 4);
	const FChildren& Children = *Box->GetChildren();
	const auto& Stretched = static_cast<const SBoxPanel::FSlot&>(Children.GetSlotAt(0));
	EXPECT_EQ(Stretched.SizeParam.SizeRule, FSizeParam::SizeRule_Stretch);
	EXPECT_EQ(Stretched.SizeParam.Value.Get(), 1.0f);
	EXPECT_EQ(Stretched.HAlignment, HAlign_Fill);
	const auto& Auto = static_cast<const SBoxPanel::FSlot&>(Children.GetSlotAt(1));
	EXPECT_EQ(Auto.SizeParam.SizeRule, FSizeParam::SizeRule_Auto);
	EXPECT_EQ(Auto.HAlignment, HAlign_Center);
	EXPECT_TRUE(Auto.SlotPadding.Get() == FMargin(1.0f, 2.0f, 3.0f, 4.0f));
}

TEST(SHorizontalBox, LaysOutAlongTheWidth)
{
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(4.0f, 0.0f)[MakeLeaf(20.0f, 10.0f)]
		+ SHorizontalBox::Slot().FillWidth(2.0f)[MakeLeaf(1.0f, 1.0f)]
		+ SHorizontalBox::Slot().FillWidth(1.0f)[MakeLeaf(1.0f, 1.0f)];
	const FArrangedChildren Arranged = ArrangeIn(Box, 118.0f, 30.0f);
	ASSERT_EQ(Arranged.Num(), 3);
	EXPECT_EQ(ToRect(Arranged[0].Geometry), (FTestRect{4.0f, 10.0f, 20.0f, 10.0f}));
	EXPECT_EQ(ToRect(Arranged[1].Geometry), (FTestRect{28.0f, 0.0f, 60.0f, 30.0f}));
	EXPECT_EQ(ToRect(Arranged[2].Geometry), (FTestRect{88.0f, 0.0f, 30.0f, 30.0f}));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(30.0f, 10.0f));
}
// clang-format on

namespace
{
	/** What a slot of the model is made of; whole numbers, so that sums are exact. */
	struct FModelSlot
	{
		bool bAuto;
		int Weight;
		int Height;
		int PaddingTop;
		int PaddingBottom;
		int Visibility;

		bool TakesPlace() const { return Visibility != 2; }
		int Fixed() const { return PaddingTop + PaddingBottom + (bAuto ? Height : 0); }
	};

	rc::Gen<FModelSlot> GenerateSlot()
	{
		return rc::gen::build<FModelSlot>(rc::gen::set(&FModelSlot::bAuto),
			rc::gen::set(&FModelSlot::Weight, rc::gen::inRange(1, 8)),
			rc::gen::set(&FModelSlot::Height, rc::gen::inRange(0, 100)),
			rc::gen::set(&FModelSlot::PaddingTop, rc::gen::inRange(0, 10)),
			rc::gen::set(&FModelSlot::PaddingBottom, rc::gen::inRange(0, 10)),
			rc::gen::set(&FModelSlot::Visibility, rc::gen::inRange(0, 3)));
	}

	TSharedRef<SVerticalBox> MakeBox(const std::vector<FModelSlot>& Model)
	{
		const EVisibility Visibilities[] = {EVisibility::Visible, EVisibility::Hidden, EVisibility::Collapsed};
		SVerticalBox::FArguments Arguments;
		for (const FModelSlot& ModelSlot : Model)
		{
			SVerticalBox::FSlot& Slot = SVerticalBox::Slot().Padding(
				0.0f, static_cast<float>(ModelSlot.PaddingTop), 0.0f, static_cast<float>(ModelSlot.PaddingBottom));
			const TSharedRef<STestLeaf> Leaf = MakeLeaf(10.0f, static_cast<float>(ModelSlot.Height));
			Leaf->SetVisibility(Visibilities[ModelSlot.Visibility]);
			Slot[Leaf];
			if (ModelSlot.bAuto)
			{
				Slot.AutoHeight();
			}
			else
			{
				Slot.FillHeight(static_cast<float>(ModelSlot.Weight));
			}
			Arguments + Slot;
		}
		const TSharedRef<SVerticalBox> Box = MakeShared<SVerticalBox>();
		Box->Construct(Arguments);
		return Box;
	}
}

RC_GTEST_PROP(SVerticalBox, FollowsAPlainModel, ())
{
	const auto Model = *rc::gen::container<std::vector<FModelSlot>>(GenerateSlot());
	const int Allotted = *rc::gen::inRange(0, 2000);
	int Fixed = 0;
	int Weights = 0;
	for (const FModelSlot& Slot : Model)
	{
		Fixed += Slot.TakesPlace() ? Slot.Fixed() : 0;
		Weights += Slot.TakesPlace() && !Slot.bAuto ? Slot.Weight : 0;
	}
	const FArrangedChildren Arranged = ArrangeIn(MakeBox(Model), 50.0f, static_cast<float>(Allotted), EVisibility::All);
	const double Unit = Weights > 0 ? std::max(Allotted - Fixed, 0) / static_cast<double>(Weights) : 0.0;
	double Start = 0.0;
	int32 Index = 0;
	for (const FModelSlot& Slot : Model)
	{
		if (!Slot.TakesPlace())
		{
			continue;
		}
		RC_ASSERT(Index < Arranged.Num());
		const FTestRect Rect = ToRect(Arranged[Index++].Geometry);
		const double Height = Slot.bAuto ? Slot.Height : Slot.Weight * Unit;
		RC_ASSERT(std::abs(Rect.Y - (Start + Slot.PaddingTop)) < 0.01);
		RC_ASSERT(std::abs(Rect.Height - Height) < 0.01);
		RC_ASSERT(Rect.Width == 50.0f);
		Start += Slot.PaddingTop + Height + Slot.PaddingBottom;
	}
	RC_ASSERT(Index == Arranged.Num());
	RC_ASSERT(Weights == 0 || Fixed > Allotted || std::abs(Start - Allotted) < 0.01);
}

RC_GTEST_PROP(SVerticalBox, NeverLetsChildrenOverlap, ())
{
	const auto Model = *rc::gen::container<std::vector<FModelSlot>>(GenerateSlot());
	const FArrangedChildren Arranged =
		ArrangeIn(MakeBox(Model), 50.0f, static_cast<float>(*rc::gen::inRange(0, 500)), EVisibility::All);
	for (int32 Index = 1; Index < Arranged.Num(); ++Index)
	{
		const FTestRect Above = ToRect(Arranged[Index - 1].Geometry);
		RC_ASSERT(ToRect(Arranged[Index].Geometry).Y >= Above.Y + Above.Height - 0.01f);
	}
}
