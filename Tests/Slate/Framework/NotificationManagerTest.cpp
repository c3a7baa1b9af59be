// Copyright Corvane. MIT License.
#include "../NotificationFixture.h"

#include "Widgets/Input/SButton.h"

class FNotificationManagerTest : public FNotificationFixture
{};

TEST_F(FNotificationManagerTest, ShowsWhatIsAddedOldestFirst)
{
	const TSharedRef<SNotificationItem> One = Show(Lasting(TEXT("one")));
	Show(Lasting(TEXT("two")));
	EXPECT_EQ(GetTexts(), (FTexts{"one", "two"}));
	EXPECT_EQ(Manager().GetShown()[0], One);
	EXPECT_EQ(One->GetCompletionState(), SNotificationItem::CS_None);
}

TEST_F(FNotificationManagerTest, AloneKeepsWhatItShowsAlive)
{
	const TWeakPtr<SNotificationItem> Item = Manager().AddNotification(Lasting());
	TurnTo(1000.0);
	ASSERT_TRUE(Item.IsValid());
	Item.Pin()->ExpireAndFadeout();
	EXPECT_TRUE(Item.IsValid());
	App().Tick();
	EXPECT_FALSE(Item.IsValid());
}

TEST_F(FNotificationManagerTest, TakesAwayWhatShallBeForgottenOnceItHasExpiredAndFaded)
{
	TurnTo(10.0);
	FNotificationInfo Info(FText::FromString(TEXT("short")));
	Show(Info);
	Info.ExpireDuration = 4.0f;
	Info.FadeOutDuration = 0.5f;
	Show(Info);
	EXPECT_EQ(Manager().GetShown()[0]->GetExpireTime().GetValue(), 13.0);
	EXPECT_EQ(Manager().GetShown()[1]->GetExpireTime().GetValue(), 14.5);
	TurnTo(12.999);
	EXPECT_EQ(Manager().GetShown().Num(), 2);
	TurnTo(13.0);
	EXPECT_EQ(Manager().GetShown().Num(), 1);
	TurnTo(14.499);
	EXPECT_EQ(Manager().GetShown().Num(), 1);
	TurnTo(14.5);
	EXPECT_EQ(Manager().GetShown().Num(), 0);
}

TEST_F(FNotificationManagerTest, TakesNothingAwayBeforeTheApplicationTicks)
{
	Show(FNotificationInfo(FText()));
	App().SetCurrentTime(100.0);
	EXPECT_EQ(Manager().GetShown().Num(), 1);
	App().Tick();
	EXPECT_EQ(Manager().GetShown().Num(), 0);
}

TEST_F(FNotificationManagerTest, TakesAwayTheOneInTheMiddleAndKeepsTheOrder)
{
	Show(Lasting(TEXT("one")));
	const TSharedRef<SNotificationItem> Two = Show(Lasting(TEXT("two")));
	Show(Lasting(TEXT("three")));
	Two->ExpireAndFadeout();
	App().Tick();
	EXPECT_EQ(GetTexts(), (FTexts{"one", "three"}));
}

TEST(FNotificationManager, ShowsNothingWithoutAnApplication)
{
	EXPECT_FALSE(FSlateNotificationManager::Get().AddNotification(FNotificationInfo(FText())).IsValid());
	EXPECT_EQ(FSlateNotificationManager::Get().GetShown().Num(), 0);
}

TEST(FNotificationManager, ShowsNothingThatAnEarlierApplicationShowed)
{
	FSlateApplication::Create();
	const TSharedPtr<SNotificationItem> Item =
		FSlateNotificationManager::Get().AddNotification(FNotificationInfo(FText()));
	FSlateApplication::Shutdown();
	EXPECT_EQ(FSlateNotificationManager::Get().GetShown().Num(), 0);
	// Held by somebody, it may be told anything; there is no clock that it could expire by.
	Item->SetCompletionState(SNotificationItem::CS_Fail);
	const double ExpireTime = Item->GetExpireTime().GetValue();
	Item->ExpireAndFadeout();
	EXPECT_EQ(Item->GetExpireTime().GetValue(), ExpireTime);
}

TEST_F(FNotificationManagerTest, ClosesAllAtOnce)
{
	const TWeakPtr<SNotificationItem> Lost = Manager().AddNotification(Lasting());
	const TSharedRef<SNotificationItem> Held = Show(FNotificationInfo(FText()));
	Manager().CloseAll();
	EXPECT_EQ(Manager().GetShown().Num(), 0);
	EXPECT_FALSE(Lost.IsValid());
	EXPECT_EQ(Held->GetVisibility(), EVisibility::Collapsed);
}

TEST_F(FNotificationManagerTest, ShowsNothingAnewThatIsToldSomethingAfterItHasGone)
{
	const TSharedRef<SNotificationItem> Item = Show(Lasting());
	Item->ExpireAndFadeout();
	App().Tick();
	Item->SetCompletionState(SNotificationItem::CS_Success);
	Item->ExpireAndFadeout();
	App().Tick();
	EXPECT_EQ(Manager().GetShown().Num(), 0);
	EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Success);
	EXPECT_EQ(Item->GetVisibility(), EVisibility::Collapsed);
}

TEST_F(FNotificationManagerTest, TakesTheFocusFromWhatItTakesAway)
{
	FNotificationInfo Info = Lasting();
	int32 Presses = 0;
	Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate::CreateLambda([&Presses]() { ++Presses; })));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	EXPECT_TRUE(App().SetKeyboardFocus(FindAll(Item, "SButton")[0]));
	Item->ExpireAndFadeout();
	App().Tick();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	KeyDown(EKeys::Enter);
	KeyUp(EKeys::Enter);
	EXPECT_EQ(Presses, 0);
}

TEST_F(FNotificationManagerTest, ShowsEachInAWindowOfItsOwnOldestFirst)
{
	EXPECT_EQ(GetWindows().Num(), 0);
	const TSharedRef<SNotificationItem> One = Show(Lasting(TEXT("one")));
	const TSharedRef<SNotificationItem> Two = Show(Lasting(TEXT("two")));
	const TArray<TSharedRef<SWindow>> Windows = GetWindows();
	ASSERT_EQ(Windows.Num(), 2);
	EXPECT_EQ(Windows[0]->GetTypeAsString(), FString(TEXT("SWindow")));
	ASSERT_EQ(Windows[0]->GetChildren()->Num(), 1);
	EXPECT_EQ(Windows[0]->GetChildren()->GetChildAt(0), One);
	EXPECT_EQ(Windows[1]->GetChildren()->GetChildAt(0), Two);
	EXPECT_EQ(One->GetParentWidget(), Windows[0]);
	EXPECT_FALSE(Windows[0]->GetParentWidget().IsValid()) << "a root";
	EXPECT_TRUE(GetWindows() == Windows) << "the same again";
}

TEST_F(FNotificationManagerTest, AddsItsWindowsToWhatIsInTheListAlready)
{
	Show(Lasting());
	TArray<TSharedRef<SWindow>> Windows = {SNew(SWindow)};
	EXPECT_EQ(Windows[0]->GetChildren()->Num(), 0) << "an empty window";
	Manager().GetWindows(Windows);
	ASSERT_EQ(Windows.Num(), 2);
	EXPECT_EQ(Windows[1], GetWindows()[0]);
}

TEST_F(FNotificationManagerTest, TakesTheWindowAwayWithItsNotification)
{
	Show(Lasting(TEXT("one")));
	const TWeakPtr<SNotificationItem> Two = Manager().AddNotification(Lasting(TEXT("two")));
	Show(Lasting(TEXT("three")));
	TArray<TSharedRef<SWindow>> Windows = GetWindows();
	const TWeakPtr<SWindow> Gone = Windows[1];
	Windows.RemoveAt(1);
	Two.Pin()->ExpireAndFadeout();
	EXPECT_TRUE(Gone.IsValid());
	App().Tick();
	EXPECT_FALSE(Gone.IsValid());
	EXPECT_FALSE(Two.IsValid());
	EXPECT_TRUE(GetWindows() == Windows);
	Manager().CloseAll();
	EXPECT_EQ(GetWindows().Num(), 0);
}

TEST_F(FNotificationManagerTest, LeavesNothingToPressInAWindowThatSomebodyHolds)
{
	FNotificationInfo Info = Lasting();
	int32 Presses = 0;
	Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate::CreateLambda([&Presses]() { ++Presses; })));
	Show(Info);
	const TSharedRef<SWindow> Window = GetWindows()[0];
	const TSharedRef<SWidget> Press = FindAll(Window, "SButton")[0];
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Press, Path));
	EXPECT_EQ(Path.Widgets[0].Widget, Window);
	EXPECT_EQ(Path.Widgets[0].Geometry.GetLocalSize(), Path.Widgets[1].Geometry.GetLocalSize());
	Click(Press);
	EXPECT_EQ(Presses, 1);
	Manager().CloseAll();
	EXPECT_FALSE(App().GeneratePathToWidgetUnchecked(Press, Path));
	EXPECT_FALSE(App().SetKeyboardFocus(Press));
}

TEST_F(FNotificationManagerTest, KeepsTheFocusWithinOneWindow)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("One"), FSimpleDelegate()));
	Info.ButtonDetails.Add(Button(TEXT("Two"), FSimpleDelegate()));
	Show(Info);
	Show(Info);
	const TArray<TSharedRef<SWidget>> Buttons = FindAll(GetWindows()[0], "SButton");
	ASSERT_TRUE(App().SetKeyboardFocus(Buttons[0]));
	KeyDown(EKeys::Tab);
	EXPECT_TRUE(HasFocus(Buttons[1]));
	KeyDown(EKeys::Tab);
	EXPECT_TRUE(HasFocus(Buttons[0]));
}

TEST_F(FNotificationManagerTest, LetsACallbackThatDiesShowAnotherNotification)
{
	// What the callback holds may be the last owner of something that says good-bye.
	for (int32 Index = 0; Index < 3; ++Index)
	{
		FNotificationInfo Info = Lasting(TEXT("first"));
		const std::shared_ptr<int> Owned(new int(0),
			[](const int* Number)
			{
				delete Number;
				Show(Lasting(TEXT("good-bye")));
			});
		Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate::CreateLambda([Owned]() {})));
		Show(Info)->ExpireAndFadeout();
	}
	Show(Lasting(TEXT("second")));
	App().Tick();
	EXPECT_EQ(GetTexts(), (FTexts{"second", "good-bye", "good-bye", "good-bye"}));
}

TEST_F(FNotificationManagerTest, CopesWithAThousandAtOnce)
{
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		FNotificationInfo Info = Lasting(*FString::FromInt(Index));
		Info.bFireAndForget = Index % 2 == 0;
		Info.ExpireDuration = static_cast<float>(Index);
		Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate()));
		Show(Info);
	}
	EXPECT_EQ(Manager().GetShown().Num(), 1000);
	TurnTo(499.0);
	ASSERT_EQ(Manager().GetShown().Num(), 750);
	EXPECT_EQ(GetTexts()[249], "499");
	EXPECT_EQ(GetTexts()[250], "500");
	TurnTo(1000.0);
	EXPECT_EQ(Manager().GetShown().Num(), 500);
	Manager().CloseAll();
	EXPECT_EQ(Manager().GetShown().Num(), 0);
}

namespace
{
	/** A notification as it should be. */
	struct FItemModel
	{
		TSharedPtr<SNotificationItem> Item;
		double Duration = 0.0;
		bool bShown = true;
		bool bExpires = false;
		double ExpireTime = 0.0;
		int32 State = 0;
	};

	/** What any sequence of additions, states, expiries and turns of the clock should lead to. */
	struct FScreenModel
	{
		std::vector<FItemModel> Items;
		double Time = 0.0;

		void Expire(FItemModel& Item) const
		{
			Item.bExpires = true;
			Item.ExpireTime = Time + Item.Duration;
		}
		void Tick()
		{
			for (FItemModel& Item : Items)
			{
				Item.bShown = Item.bShown && !(Item.bExpires && Item.ExpireTime <= Time);
			}
		}
	};
}

class FNotificationManagerProperty : public FNotificationFixture
{
protected:
	void Add()
	{
		FNotificationInfo Info(FText::FromString(TEXT("Any")));
		Info.bFireAndForget = *rc::gen::arbitrary<bool>();
		Info.ExpireDuration = 0.25f * static_cast<float>(*rc::gen::inRange(0, 8));
		Info.FadeOutDuration = 0.25f * static_cast<float>(*rc::gen::inRange(0, 8));
		for (int32 State = 0; State < 4; ++State)
		{
			Info.ButtonDetails.Add(
				Button(TEXT("Press"), FSimpleDelegate(), static_cast<SNotificationItem::ECompletionState>(State)));
		}
		FItemModel Added;
		Added.Item = Manager().AddNotification(Info);
		Added.Duration = static_cast<double>(Info.ExpireDuration) + Info.FadeOutDuration;
		if (Info.bFireAndForget)
		{
			Model.Expire(Added);
		}
		Model.Items.push_back(Added);
	}
	void Change(FItemModel& Item)
	{
		if (*rc::gen::arbitrary<bool>())
		{
			Item.Item->ExpireAndFadeout();
			Model.Expire(Item);
			return;
		}
		Item.State = *rc::gen::inRange(0, 4);
		Item.Item->SetCompletionState(static_cast<SNotificationItem::ECompletionState>(Item.State));
	}
	void Turn()
	{
		Model.Time += 0.25 * *rc::gen::inRange(0, 6);
		TurnTo(Model.Time);
		Model.Tick();
	}
	void CloseAll()
	{
		Manager().CloseAll();
		for (FItemModel& Item : Model.Items)
		{
			Item.bShown = false;
		}
	}
	static void Compare(const FItemModel& Item)
	{
		const SNotificationItem& Actual = *Item.Item;
		RC_ASSERT(Actual.GetVisibility().IsVisible() == Item.bShown);
		RC_ASSERT(Actual.GetCompletionState() == Item.State);
		RC_ASSERT(Actual.GetExpireTime().IsSet() == Item.bExpires);
		RC_ASSERT(Actual.GetExpireTime().Get(0.0) == Item.ExpireTime);
		for (int32 State = 0; State < 4; ++State)
		{
			RC_ASSERT(Actual.GetButtonVisibility(State).IsVisible() == (State == Item.State));
		}
	}
	void CompareAll() const
	{
		int32 Shown = 0;
		const TArray<TSharedRef<SWindow>> Windows = GetWindows();
		RC_ASSERT(Windows.Num() == Manager().GetShown().Num());
		for (const FItemModel& Item : Model.Items)
		{
			Compare(Item);
			if (Item.bShown)
			{
				RC_ASSERT(Shown < Manager().GetShown().Num());
				RC_ASSERT(Item.Item->GetParentWidget() == Windows[Shown]);
				RC_ASSERT(Manager().GetShown()[Shown++] == Item.Item);
			}
		}
		RC_ASSERT(Manager().GetShown().Num() == Shown);
	}

	FScreenModel Model;
};

RC_GTEST_FIXTURE_PROP(FNotificationManagerProperty, ShowsWhatAPlainModelShows, (const std::vector<uint8>& Steps))
{
	for (const uint8 Step : Steps)
	{
		const bool bAny = !Model.Items.empty();
		if (Step % 16 == 0)
		{
			CloseAll();
		}
		else if (Step % 4 == 1 && bAny)
		{
			Change(Model.Items[*rc::gen::inRange<size_t>(0, Model.Items.size())]);
		}
		else
		{
			Step % 2 == 0 ? Turn() : Add();
		}
		CompareAll();
	}
}
