// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "../SlateCore/TestWidgets.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SCompoundWidget.h"

namespace
{
	/** A widget that takes the focus and writes down what it hears. */
	class SListener : public SCompoundWidget
	{
	public:
		SLATE_BEGIN_ARGS(SListener) : _Log(nullptr), _bFocusable(true), _bHandles(false) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(std::vector<std::string>*, Log)
		SLATE_ARGUMENT(std::string, Name)
		SLATE_ARGUMENT(bool, bFocusable)
		SLATE_ARGUMENT(bool, bHandles)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			Arguments = InArgs;
			ChildSlot[InArgs._Content.Widget];
		}
		virtual bool SupportsKeyboardFocus() const override { return Arguments._bFocusable; }
		virtual FReply OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& /*Event*/) override
		{
			return Hear("got focus");
		}
		virtual void OnFocusLost(const FFocusEvent& /*Event*/) override { Hear("lost focus"); }
		virtual FReply OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*Event*/) override
		{
			return Hear("key");
		}
		virtual FReply OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*Event*/) override
		{
			return Hear("down");
		}

	private:
		FReply Hear(const char* What)
		{
			Arguments._Log->push_back(Arguments._Name + " " + What);
			return Arguments._bHandles ? FReply::Handled() : FReply::Unhandled();
		}

		FArguments Arguments;
	};

	class FSlateApplicationTest : public FSlateFixture
	{
	public:
		TSharedRef<SListener> Listen(const char* Name, const TSharedRef<SWidget>& Content = SNullWidget::NullWidget)
		{
			return SNew(SListener).Log(&Log).Name(Name)[Content];
		}

		typedef std::vector<std::string> FLog;
		FLog Log;
	};

	typedef FSlateApplicationTest FSlateApplicationDeathTest;

	/** A clock may stand for a few ticks; one that stands for all of these never moves. */
	void TickUntilAfter(double Seconds)
	{
		FSlateApplication& App = FSlateApplication::Get();
		for (int32 Ticks = 0; Ticks < 1000000 && App.GetCurrentTime() <= Seconds; ++Ticks)
		{
			App.Tick();
		}
	}
}

TEST(FSlateApplication, IsThereBetweenCreateAndShutdown)
{
	EXPECT_FALSE(FSlateApplication::IsInitialized());
	FSlateApplication::Create();
	EXPECT_TRUE(FSlateApplication::IsInitialized());
	EXPECT_EQ(FSlateApplication::Get().GetRenderer(), nullptr);
	FSlateApplication::Shutdown();
	EXPECT_FALSE(FSlateApplication::IsInitialized());
}

TEST(FSlateApplication, TellsTimeByTheMachinesClockFromItsMakingOn)
{
	FSlateApplication::Create();
	FSlateApplication& App = FSlateApplication::Get();
	EXPECT_EQ(App.GetCurrentTime(), 0.0);
	TickUntilAfter(0.0);
	const double First = App.GetCurrentTime();
	EXPECT_GT(First, 0.0);
	EXPECT_LT(First, 60.0);
	EXPECT_EQ(App.GetCurrentTime(), First) << "it stands between two ticks";
	TickUntilAfter(First);
	EXPECT_GT(App.GetCurrentTime(), First);
	FSlateApplication::Shutdown();
}

TEST(FSlateApplication, KeepsTheTimeOnceItWasSet)
{
	FSlateApplication::Create();
	FSlateApplication::Get().SetCurrentTime(7.5);
	FSlateApplication::Get().Tick();
	EXPECT_EQ(FSlateApplication::Get().GetCurrentTime(), 7.5);
	FSlateApplication::Shutdown();
	FSlateApplication::Create();
	FSlateApplication::Get().Tick();
	EXPECT_NE(FSlateApplication::Get().GetCurrentTime(), 7.5) << "the next application has a clock of its own";
	FSlateApplication::Shutdown();
}

TEST(FSlateApplicationLifeDeathTest, DiesWhenAskedForBeforeItIsCreated)
{
	EXPECT_EXIT(FSlateApplication::Get(), ::testing::ExitedWithCode(3), "IsInitialized");
}

TEST_F(FSlateApplicationDeathTest, DiesWhenCreatedTwice)
{
	EXPECT_EXIT(FSlateApplication::Create(), ::testing::ExitedWithCode(3), "IsInitialized");
}

TEST_F(FSlateApplicationTest, HandsOutTheRendererThatItWasGiven)
{
	const TSharedRef<FSlateNullRenderer> Renderer = MakeShared<FSlateNullRenderer>();
	EXPECT_TRUE(App().InitializeRenderer(Renderer));
	EXPECT_EQ(App().GetRenderer(), &Renderer.Get());
}

TEST_F(FSlateApplicationTest, TellsTheOldWidgetOfTheFocusThenTheNewOne)
{
	const TSharedRef<SListener> First = Listen("first");
	const TSharedRef<SListener> Second = Listen("second");
	EXPECT_TRUE(App().SetKeyboardFocus(First));
	EXPECT_TRUE(App().SetKeyboardFocus(Second));
	EXPECT_EQ(Log, (FLog{"first got focus", "first lost focus", "second got focus"}));
	EXPECT_TRUE(HasFocus(Second));
}

TEST_F(FSlateApplicationTest, TellsNothingWhenTheFocusStays)
{
	const TSharedRef<SListener> First = Listen("first");
	App().SetKeyboardFocus(First);
	EXPECT_TRUE(App().SetKeyboardFocus(First));
	EXPECT_EQ(Log, (FLog{"first got focus"}));
}

TEST_F(FSlateApplicationTest, DoesNotGiveTheFocusToWhatCannotHaveIt)
{
	const TSharedRef<SListener> Holder = Listen("holder");
	App().SetKeyboardFocus(Holder);
	const TSharedRef<SListener> Unfocusable = SNew(SListener).Log(&Log).bFocusable(false);
	EXPECT_FALSE(App().SetKeyboardFocus(Unfocusable));
	EXPECT_FALSE(App().SetKeyboardFocus(nullptr));
	const TSharedRef<SListener> Other = Listen("other");
	for (const EVisibility Unseen : {EVisibility::Hidden, EVisibility::Collapsed})
	{
		Other->SetVisibility(Unseen);
		EXPECT_FALSE(App().SetKeyboardFocus(Other));
	}
	Other->SetVisibility(EVisibility::Visible);
	Other->SetEnabled(false);
	EXPECT_FALSE(App().SetKeyboardFocus(Other));
	EXPECT_TRUE(HasFocus(Holder));
}

TEST_F(FSlateApplicationTest, TakesTheFocusFromAWidgetWhoseParentIsHidden)
{
	const TSharedRef<SListener> Child = Listen("child");
	const TSharedRef<SListener> Parent = Listen("parent", Child);
	App().SetKeyboardFocus(Child);
	Parent->SetVisibility(EVisibility::Hidden);
	App().Tick();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	EXPECT_EQ(Log, (FLog{"child got focus", "child lost focus"}));
}

TEST_F(FSlateApplicationTest, TakesTheFocusFromADisabledWidgetBeforeTheNextKey)
{
	const TSharedRef<SListener> Child = Listen("child");
	App().SetKeyboardFocus(Child);
	Child->SetEnabled(false);
	EXPECT_FALSE(KeyDown(EKeys::A));
	EXPECT_EQ(Log, (FLog{"child got focus", "child lost focus"}));
}

TEST_F(FSlateApplicationTest, ForgetsAFocusedWidgetThatDies)
{
	TSharedPtr<SListener> Child = Listen("child");
	App().SetKeyboardFocus(Child);
	Child.Reset();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	EXPECT_FALSE(KeyDown(EKeys::A));
	EXPECT_EQ(Log, (FLog{"child got focus"}));
}

TEST_F(FSlateApplicationTest, OffersKeysToTheFocusedWidgetFirstAndThenToItsParents)
{
	const TSharedRef<SListener> Child = Listen("child");
	const TSharedRef<SListener> Parent = Listen("parent", Child);
	App().SetKeyboardFocus(Child);
	Log.clear();
	EXPECT_FALSE(KeyDown(EKeys::A));
	EXPECT_EQ(Log, (FLog{"child key", "parent key"}));
}

TEST_F(FSlateApplicationTest, OffersAKeyToNobodyAfterItWasHandled)
{
	const TSharedRef<SListener> Child = SNew(SListener).Log(&Log).Name("child").bHandles(true);
	const TSharedRef<SListener> Parent = Listen("parent", Child);
	App().SetKeyboardFocus(Child);
	Log.clear();
	EXPECT_TRUE(KeyDown(EKeys::A));
	EXPECT_EQ(Log, (FLog{"child key"}));
}

TEST_F(FSlateApplicationTest, BubblesThePointerFromTheLeafUp)
{
	const TSharedRef<SListener> Child = SNew(SListener).Log(&Log).Name("child").bFocusable(false);
	const TSharedRef<SListener> Parent = Listen("parent", Child);
	MouseDown(Child);
	EXPECT_EQ(Log, (FLog{"child down", "parent down", "parent got focus"}));
}

TEST_F(FSlateApplicationTest, StopsThePointerWhereItIsHandledButStillMovesTheFocus)
{
	const TSharedRef<SListener> Child = SNew(SListener).Log(&Log).Name("child").bFocusable(false).bHandles(true);
	const TSharedRef<SListener> Parent = Listen("parent", Child);
	MouseDown(Child);
	EXPECT_EQ(Log, (FLog{"child down", "parent got focus"}));
}

TEST_F(FSlateApplicationTest, OffersThePointerToNothingWithinADisabledWidget)
{
	const TSharedRef<SListener> Child = Listen("child");
	const TSharedRef<SListener> Disabled = Listen("disabled", Child);
	const TSharedRef<SListener> Root = Listen("root", Disabled);
	Disabled->SetEnabled(false);
	MouseDown(Child);
	EXPECT_EQ(Log, (FLog{"root down", "root got focus"}));
}

TEST_F(FSlateApplicationTest, MovesTheFocusInTheOrderOfTheTree)
{
	const TSharedRef<SListener> First = Listen("first");
	const TSharedRef<SListener> Second = Listen("second");
	const TSharedRef<SListener> Hidden = Listen("hidden");
	const TSharedRef<SListener> Third = Listen("third");
	Hidden->SetVisibility(EVisibility::Hidden);
	// clang-format off
	const TSharedRef<SVerticalBox> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[SNew(SHorizontalBox) + SHorizontalBox::Slot()[First] + SHorizontalBox::Slot()[Second]]
		+ SVerticalBox::Slot()[Hidden]
		+ SVerticalBox::Slot()[Third];
	// clang-format on
	App().SetKeyboardFocus(First);
	EXPECT_TRUE(KeyDown(EKeys::Tab));
	EXPECT_TRUE(HasFocus(Second));
	KeyDown(EKeys::Tab);
	EXPECT_TRUE(HasFocus(Third));
	KeyDown(EKeys::Tab);
	EXPECT_TRUE(HasFocus(First));
	KeyDown(EKeys::Tab, true);
	EXPECT_TRUE(HasFocus(Third));
}

TEST_F(FSlateApplicationTest, LeavesTheTabKeyAloneWithoutFocus)
{
	EXPECT_TRUE(KeyDown(EKeys::Tab));
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FSlateApplicationTest, TakesTheFocusBackFromAWidgetThatWasHiddenByTheLoss)
{
	TSharedPtr<SListener> Target = Listen("target");
	/** Hides the target when it loses the focus. */
	class SHider : public SButton
	{
	public:
		virtual void OnFocusLost(const FFocusEvent& /*InFocusEvent*/) override
		{
			Other->SetVisibility(EVisibility::Collapsed);
		}
		TSharedPtr<SWidget> Other;
	};
	const TSharedRef<SHider> Hider = SNew(SHider);
	Hider->Other = Target;
	App().SetKeyboardFocus(Hider);
	EXPECT_FALSE(App().SetKeyboardFocus(Target));
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FSlateApplicationTest, MakesAPathFromTheRootWithGeometries)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(30.0f, 20.0f);
	// clang-format off
	const TSharedRef<SVerticalBox> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[MakeLeaf(100.0f, 50.0f)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right).Padding(5)[Leaf];
	// clang-format on
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Leaf, Path));
	ASSERT_EQ(Path.Widgets.Num(), 2);
	EXPECT_TRUE(Path.Widgets[0].Widget == Root);
	EXPECT_EQ(ToRect(Path.Widgets[0].Geometry), (FTestRect{0.0f, 0.0f, 100.0f, 80.0f}));
	EXPECT_TRUE(Path.GetLastWidget() == Leaf);
	EXPECT_EQ(ToRect(Path.Widgets[1].Geometry), (FTestRect{65.0f, 55.0f, 30.0f, 20.0f}));
}

TEST_F(FSlateApplicationTest, MakesNoPathToWhatIsNotShown)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(30.0f, 20.0f);
	const TSharedRef<SVerticalBox> Root = SNew(SVerticalBox) + SVerticalBox::Slot()[Leaf];
	FWidgetPath Path;
	Leaf->SetVisibility(EVisibility::Hidden);
	EXPECT_FALSE(App().GeneratePathToWidgetUnchecked(Leaf, Path));
	EXPECT_FALSE(Path.IsValid());
	EXPECT_TRUE(App().GeneratePathToWidgetUnchecked(Leaf, Path, EVisibility::All));
	Leaf->SetVisibility(EVisibility::Visible);
	Root->SetVisibility(EVisibility::Collapsed);
	EXPECT_FALSE(App().GeneratePathToWidgetUnchecked(Leaf, Path));
}
