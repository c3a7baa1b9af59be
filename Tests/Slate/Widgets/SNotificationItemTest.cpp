// Copyright Corvane. MIT License.
#include "../NotificationFixture.h"

#include "Styling/SlateBrush.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Text/STextBlock.h"

class FNotificationItemTest : public FNotificationFixture
{
protected:
	typedef SNotificationItem::ECompletionState EState;

	static TSharedRef<STextBlock> GetTextBlock(const TSharedRef<SNotificationItem>& Item, int32 Index = 0)
	{
		return StaticCastSharedRef<STextBlock>(FindAll(Item, "STextBlock")[Index]);
	}
	/** The number of a button's presses, counted in Presses. */
	FSimpleDelegate Count()
	{
		return FSimpleDelegate::CreateLambda([this]() { ++Presses; });
	}

	int32 Presses = 0;
};

TEST_F(FNotificationItemTest, HasTheseSettingsByDefault)
{
	const FNotificationInfo Info(FText::FromString(TEXT("Text")));
	EXPECT_EQ(Info.Text.Get().ToString(), TEXT("Text"));
	EXPECT_EQ(Info.ButtonDetails.Num(), 0);
	EXPECT_EQ(Info.Image, nullptr);
	EXPECT_EQ(Info.FadeOutDuration, 2.0f);
	EXPECT_EQ(Info.ExpireDuration, 1.0f);
	EXPECT_TRUE(Info.bUseThrobber);
	EXPECT_TRUE(Info.bUseLargeFont);
	EXPECT_TRUE(Info.bFireAndForget);
}

TEST_F(FNotificationItemTest, ShowsItsImageItsTextAndItsButtonsInOrder)
{
	FSlateBrush Brush;
	FNotificationInfo Info = Lasting(TEXT("Two\nlines"));
	Info.Image = &Brush;
	Info.ButtonDetails.Add(Button(TEXT("First"), Count()));
	Info.ButtonDetails.Add(Button(TEXT("Second"), Count()));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	EXPECT_EQ(StaticCastSharedRef<SImage>(FindAll(Item, "SImage")[0])->GetImage(), &Brush);
	ASSERT_EQ(FindAll(Item, "STextBlock").Num(), 3);
	EXPECT_EQ(GetTextBlock(Item)->GetText().ToString(), TEXT("Two\nlines"));
	for (int32 Index = 0; Index < 2; ++Index)
	{
		const TSharedRef<SWidget> Found = FindAll(Item, "SButton")[Index];
		ASSERT_EQ(FindAll(Found, "STextBlock").Num(), 1);
		EXPECT_EQ(FindAll(Found, "STextBlock")[0], GetTextBlock(Item, 1 + Index));
		EXPECT_EQ(GetTextBlock(Item, 1 + Index)->GetText().ToString(), Index == 0 ? TEXT("First") : TEXT("Second"));
	}
	Item->SlatePrepass(1.0f);
	EXPECT_GT(Item->GetDesiredSize().X, Brush.ImageSize.X + GetTextBlock(Item)->GetDesiredSize().X);
	EXPECT_GT(Item->GetDesiredSize().Y, GetTextBlock(Item)->GetDesiredSize().Y);
}

TEST_F(FNotificationItemTest, KeepsItsOwnCopyOfWhatItWasAddedWith)
{
	FNotificationInfo Info = Lasting(TEXT("before"));
	Info.bUseThrobber = false;
	Info.ButtonDetails.Add(
		FNotificationButtonInfo(FText::FromString(TEXT("Label")), FText::FromString(TEXT("Tip")), FSimpleDelegate()));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Info.ButtonDetails = TArray<FNotificationButtonInfo>();
	Info.Text = FText::FromString(TEXT("after"));
	Info.bUseThrobber = true;
	EXPECT_EQ(GetTextBlock(Item)->GetText().ToString(), TEXT("before"));
	EXPECT_FALSE(Item->GetInfo().bUseThrobber);
	ASSERT_EQ(Item->GetInfo().ButtonDetails.Num(), 1);
	EXPECT_EQ(Item->GetInfo().ButtonDetails[0].Text.ToString(), TEXT("Label"));
	EXPECT_EQ(Item->GetInfo().ButtonDetails[0].ToolTip.ToString(), TEXT("Tip"));
}

TEST_F(FNotificationItemTest, FollowsABoundText)
{
	FText Text = FText::FromString(TEXT("before"));
	FNotificationInfo Info = Lasting();
	Info.Text = TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([&Text]() { return Text; }));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Text = FText::FromString(TEXT("after"));
	EXPECT_EQ(GetTextBlock(Item)->GetText().ToString(), TEXT("after"));
}

TEST_F(FNotificationItemTest, HasALargeAndAPlainFont)
{
	FNotificationInfo Info = Lasting();
	const FSlateFontInfo Large = GetTextBlock(Show(Info))->GetFont();
	EXPECT_EQ(Large.TypefaceFontName, FName("Bold"));
	EXPECT_EQ(Large.Size, 16);
	Info.bUseLargeFont = false;
	const FSlateFontInfo Plain = GetTextBlock(Show(Info))->GetFont();
	EXPECT_EQ(Plain.TypefaceFontName, FName("Light"));
	EXPECT_EQ(Plain.Size, 12);
}

TEST_F(FNotificationItemTest, ShowsAButtonInItsCompletionStateOnly)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText(), FText(), FSimpleDelegate()));
	for (int32 State = 0; State < 4; ++State)
	{
		Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate(), static_cast<EState>(State)));
	}
	const TSharedRef<SNotificationItem> Item = Show(Info);
	for (int32 State = 0; State < 4; ++State)
	{
		Item->SetCompletionState(static_cast<EState>(State));
		for (int32 Index = 0; Index < 5; ++Index)
		{
			const int32 VisibleIn = Index == 0 ? static_cast<int32>(SNotificationItem::CS_Pending) : Index - 1;
			const EVisibility Wanted = State == VisibleIn ? EVisibility::Visible : EVisibility::Collapsed;
			EXPECT_EQ(FindAll(Item, "SButton")[Index]->GetVisibility(), Wanted) << State << " " << Index;
			EXPECT_EQ(Item->GetButtonVisibility(Index), Wanted);
		}
	}
}

TEST_F(FNotificationItemTest, ShowsAButtonAsItsFourVisibilitiesSay)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Press"), FSimpleDelegate()));
	FNotificationButtonInfo& Only = Info.ButtonDetails[0];
	Only.VisibilityOnNone = EVisibility::Collapsed;
	Only.VisibilityOnPending = EVisibility::Hidden;
	Only.VisibilityOnSuccess = EVisibility::Visible;
	Only.VisibilityOnFail = EVisibility::SelfHitTestInvisible;
	const TSharedRef<SNotificationItem> Item = Show(Info);
	const EVisibility Wanted[] = {
		EVisibility::Collapsed, EVisibility::Hidden, EVisibility::Visible, EVisibility::SelfHitTestInvisible};
	for (int32 State = 0; State < 4; ++State)
	{
		Item->SetCompletionState(static_cast<EState>(State));
		EXPECT_EQ(Item->GetCompletionState(), State);
		EXPECT_EQ(FindAll(Item, "SButton")[0]->GetVisibility(), Wanted[State]) << State;
	}
}

TEST_F(FNotificationItemTest, CallsTheButtonThatIsPressedByPointerOrKey)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Other"), FSimpleDelegate()));
	Info.ButtonDetails.Add(Button(TEXT("Press"), Count()));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Click(FindAll(Item, "SButton")[0]);
	EXPECT_EQ(Presses, 0);
	Click(FindAll(Item, "SButton")[1]);
	EXPECT_EQ(Presses, 1);
	EXPECT_TRUE(HasFocus(FindAll(Item, "SButton")[1]));
	KeyDown(EKeys::SpaceBar);
	KeyUp(EKeys::SpaceBar);
	EXPECT_EQ(Presses, 2);
}

TEST_F(FNotificationItemTest, HasNoPlaceForAButtonThatIsNotVisible)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Press"), Count()));
	const TSharedRef<SNotificationItem> Item = Show(Info);
	Item->SetCompletionState(SNotificationItem::CS_Fail);
	FWidgetPath Path;
	EXPECT_FALSE(App().GeneratePathToWidgetUnchecked(FindAll(Item, "SButton")[0], Path));
	EXPECT_FALSE(App().SetKeyboardFocus(FindAll(Item, "SButton")[0]));
}

TEST_F(FNotificationItemTest, MayDieOfItsOwnButton)
{
	for (const bool bByKey : {false, true})
	{
		FNotificationInfo Info = Lasting();
		const TSharedRef<int32> Owned = MakeShared<int32>(5);
		int32 Seen = 0;
		Info.ButtonDetails.Add(Button(TEXT("Press"),
			FSimpleDelegate::CreateLambda(
				[Owned, &Seen]()
				{
					Manager().CloseAll();
					Seen = *Owned;
				})));
		const TWeakPtr<SNotificationItem> Item = Manager().AddNotification(Info);
		Info.ButtonDetails = TArray<FNotificationButtonInfo>();
		if (bByKey)
		{
			App().SetKeyboardFocus(FindAll(Item.Pin().ToSharedRef(), "SButton")[0]);
			KeyDown(EKeys::Enter);
			KeyUp(EKeys::Enter);
		}
		else
		{
			Click(FindAll(Item.Pin().ToSharedRef(), "SButton")[0]);
		}
		EXPECT_EQ(Seen, 5);
		EXPECT_FALSE(Item.IsValid());
		EXPECT_TRUE(Owned.IsUnique());
		EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	}
}

TEST_F(FNotificationItemTest, GoesAtTheNextTickWhenItTakesNoTimeToGo)
{
	const TSharedRef<SNotificationItem> Item = Show(Lasting());
	EXPECT_FALSE(Item->GetExpireTime().IsSet());
	Item->ExpireAndFadeout();
	EXPECT_EQ(GetTexts(), FTexts{"Text"});
	EXPECT_EQ(Item->GetVisibility(), EVisibility::Visible);
	App().Tick();
	EXPECT_EQ(GetTexts(), FTexts{});
}

TEST_F(FNotificationItemTest, GoesByTheTimeThatItWasToldTo)
{
	FNotificationInfo Info = Lasting();
	Info.ExpireDuration = 3.0f;
	Info.FadeOutDuration = 0.5f;
	const TSharedRef<SNotificationItem> Item = Show(Info);
	TurnTo(100.0);
	Item->ExpireAndFadeout();
	TurnTo(103.25);
	EXPECT_EQ(Manager().GetShown().Num(), 1);
	TurnTo(103.5);
	EXPECT_EQ(Manager().GetShown().Num(), 0);
}

TEST_F(FNotificationItemTest, BeginsAnewWhenItIsToldToGoAgain)
{
	const TSharedRef<SNotificationItem> Item = Show(FNotificationInfo(FText()));
	TurnTo(2.5);
	Item->ExpireAndFadeout();
	EXPECT_EQ(Item->GetExpireTime().GetValue(), 5.5);
	TurnTo(3.0);
	EXPECT_EQ(Manager().GetShown().Num(), 1);
	TurnTo(5.5);
	EXPECT_EQ(Manager().GetShown().Num(), 0);
}
