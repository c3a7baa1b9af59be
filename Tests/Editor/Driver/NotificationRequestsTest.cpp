// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "AuthDelegates.h"
#include "EngineText.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Styling/SlateStyleRegistry.h"
#include "TestEditor.h"

#define LOCTEXT_NAMESPACE "TestNotifications"

using nlohmann::json;

/** The engine alone, so that nobody but the test shows notifications. */
class FNotificationRequestsTest : public FEditorStateFixture
{
protected:
	FNotificationRequestsTest() : FEditorStateFixture(FTestEditor::EngineOnly()) {}

	static FSlateNotificationManager& Manager() { return FSlateNotificationManager::Get(); }
	static FNotificationInfo Lasting(const TCHAR* Text = TEXT("Text"))
	{
		FNotificationInfo Info(FText::FromString(Text));
		Info.bFireAndForget = false;
		Info.ExpireDuration = 0.0f;
		Info.FadeOutDuration = 0.0f;
		return Info;
	}
	/** A button that writes Entry down. */
	FNotificationButtonInfo Button(const TCHAR* Label, const char* Entry,
		SNotificationItem::ECompletionState State = SNotificationItem::CS_Pending)
	{
		return FNotificationButtonInfo(FText::FromString(Label), FText(),
			FSimpleDelegate::CreateLambda([this, Entry]() { Log.emplace_back(Entry); }), State);
	}
	FAnswer List() { return Ask({{"do", "notifications"}})["notifications"]; }
	static json Press(int32 Notification, const char* Label)
	{
		return {{"do", "press"}, {"notification", Notification}, {"button", Label}};
	}
	/** @return the error of a press that changed nothing, on the notifications neither. */
	std::string GetPressRefusal(int32 Notification, const char* Label)
	{
		const FAnswer Before = List();
		const std::string Error = GetRefusal(Press(Notification, Label));
		EXPECT_EQ(List(), Before);
		EXPECT_TRUE(Log.empty());
		return Error;
	}

	std::vector<std::string> Log;
	typedef std::vector<std::string> FLog;
};

TEST_F(FNotificationRequestsTest, BroadcastsAnAnnouncementAsItIsGiven)
{
	const FDelegateHandle Handle = AuthDelegates::OnUpgradeAvailable.AddLambda([this](FString Version, FString Address)
		{ Log.push_back(FEngineText::ForDisplay(Version) + " at " + FEngineText::ForDisplay(Address)); });
	Ask({{"do", "announce"}, {"version", "2.1 ä"}, {"address", "https://a.example/Release_2.1.zip"}});
	Ask({{"do", "announce"}, {"version", ""}, {"address", "no address"}});
	AuthDelegates::OnUpgradeAvailable.Remove(Handle);
	EXPECT_EQ(Log, (FLog{"2.1 ä at https://a.example/Release_2.1.zip", " at no address"}));
}

TEST_F(FNotificationRequestsTest, ShowsNothingForAnAnnouncementThatNobodyHears)
{
	Ask({{"do", "announce"}, {"version", "1"}, {"address", "https://a.example"}});
	EXPECT_EQ(List(), FAnswer::array());
}

TEST_F(FNotificationRequestsTest, ListsWhatANotificationShows)
{
	FSlateStyleSet Style("TestStyle");
	Style.Set("Test.Icon", new FSlateBrush());
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	FNotificationInfo Info = Lasting(TEXT("Two\nlines"));
	Info.Image = Style.GetBrush("test.icon");
	Info.bUseThrobber = false;
	Info.ButtonDetails.Add(
		FNotificationButtonInfo(LOCTEXT("Go", "Go on"), LOCTEXT("GoTip", "Goes on."), FSimpleDelegate()));
	Info.ButtonDetails.Add(Button(TEXT("Stop"), "", SNotificationItem::CS_Fail));
	Manager().AddNotification(Info)->SetCompletionState(SNotificationItem::CS_Pending);
	const FAnswer Expected = {{{"text", "Two\nlines"}, {"image", {{"style", "TestStyle"}, {"brush", "Test.Icon"}}},
		{"state", "Pending"}, {"largeFont", true}, {"throbber", false}, {"fireAndForget", false}, {"expires", nullptr},
		{"buttons",
			{{{"label", "Go on"}, {"labelId", "TestNotifications,Go"}, {"tooltip", "Goes on."},
				 {"tooltipId", "TestNotifications,GoTip"}, {"visible", true}},
				{{"label", "Stop"}, {"labelId", nullptr}, {"tooltip", ""}, {"tooltipId", nullptr},
					{"visible", false}}}}}};
	EXPECT_EQ(List(), Expected);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	EXPECT_EQ(List()[0]["image"], nullptr) << "no registered style has it any more";
}

TEST_F(FNotificationRequestsTest, ListsThemOldestFirst)
{
	FNotificationInfo Info = Lasting(TEXT("plain"));
	Info.bUseLargeFont = false;
	Manager().AddNotification(Lasting(TEXT("large")));
	Manager().AddNotification(Info);
	const FAnswer Answer = List();
	ASSERT_EQ(Answer.size(), 2u);
	EXPECT_EQ(Answer[0]["text"], "large");
	EXPECT_EQ(Answer[0]["largeFont"], true);
	EXPECT_EQ(Answer[0]["throbber"], true);
	EXPECT_EQ(Answer[0]["image"], nullptr);
	EXPECT_EQ(Answer[0]["buttons"], FAnswer::array());
	EXPECT_EQ(Answer[1]["text"], "plain");
	EXPECT_EQ(Answer[1]["largeFont"], false);
}

TEST_F(FNotificationRequestsTest, NamesEachState)
{
	const TSharedPtr<SNotificationItem> Item = Manager().AddNotification(Lasting());
	for (const char* State : {"None", "Pending", "Success", "Fail"})
	{
		EXPECT_EQ(List()[0]["state"], State);
		Item->SetCompletionState(static_cast<SNotificationItem::ECompletionState>(Item->GetCompletionState() + 1));
	}
}

TEST_F(FNotificationRequestsTest, CountsTheSecondsDownOnTheSessionsClock)
{
	FNotificationInfo Info(FText::FromString(TEXT("Text")));
	Info.ExpireDuration = 3.0f;
	Info.FadeOutDuration = 0.5f;
	List();
	const double Start = FSlateApplication::Get().GetCurrentTime();
	Manager().AddNotification(Info);
	EXPECT_EQ(List()[0]["expires"], 3.5) << "the frame has not moved on yet";
	EXPECT_EQ(List()[0]["fireAndForget"], true);
	EXPECT_NEAR(List()[0]["expires"].get<double>(), 3.5 - 2.0 / 60.0, 1e-6);
	Ask({{"do", "advance"}, {"seconds", 3.25}});
	EXPECT_DOUBLE_EQ(FSlateApplication::Get().GetCurrentTime(), Start + 3.25 + 4.0 / 60.0);
	EXPECT_NEAR(List()[0]["expires"].get<double>(), 0.25 - 4.0 / 60.0, 1e-6);
	Ask({{"do", "advance"}, {"seconds", 0.25}});
	EXPECT_EQ(List(), FAnswer::array());
}

TEST_F(FNotificationRequestsTest, GoesNoFurtherThanTheSessionsClock)
{
	FSlateApplication::Get().Tick();
	EXPECT_EQ(FSlateApplication::Get().GetCurrentTime(), 0.0) << "the machine's clock has no say";
	List();
	EXPECT_EQ(FSlateApplication::Get().GetCurrentTime(), 0.0) << "the first frame is the session's beginning";
	List();
	EXPECT_DOUBLE_EQ(FSlateApplication::Get().GetCurrentTime(), 1.0 / 60.0);
}

TEST_F(FNotificationRequestsTest, PressesTheButtonOfTheNotificationThatIsMeant)
{
	for (const char* Entry : {"first", "second"})
	{
		FNotificationInfo Info = Lasting();
		Info.ButtonDetails.Add(Button(TEXT("Other"), "other"));
		Info.ButtonDetails.Add(Button(TEXT("Press"), Entry));
		Manager().AddNotification(Info)->SetCompletionState(SNotificationItem::CS_Pending);
	}
	Ask(Press(1, "Press"));
	Ask(Press(0, "Press"));
	EXPECT_EQ(Log, (FLog{"second", "first"}));
}

TEST_F(FNotificationRequestsTest, TakesANotificationThatItsButtonClosesOffTheScreenAtOnce)
{
	TWeakPtr<SNotificationItem> Item;
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Close")), FText(),
		FSimpleDelegate::CreateLambda(
			[&Item]()
			{
				Item.Pin()->SetCompletionState(SNotificationItem::CS_None);
				Item.Pin()->ExpireAndFadeout();
			})));
	Item = Manager().AddNotification(Info);
	Item.Pin()->SetCompletionState(SNotificationItem::CS_Pending);
	Ask(Press(0, "Close"));
	EXPECT_FALSE(Item.IsValid());
	EXPECT_EQ(List(), FAnswer::array());
}

TEST_F(FNotificationRequestsTest, RefusesNotificationsThatThereAreNot)
{
	EXPECT_EQ(GetPressRefusal(0, "Press"), "notification 0: 0 are on screen");
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Press"), "pressed", SNotificationItem::CS_None));
	Manager().AddNotification(Info);
	EXPECT_EQ(GetPressRefusal(1, "Press"), "notification 1: 1 are on screen");
	EXPECT_EQ(GetPressRefusal(2147483647, "Press"), "notification 2147483647: 1 are on screen");
}

TEST_F(FNotificationRequestsTest, RefusesButtonsThatCannotBePressed)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Press"), "pressed"));
	Info.ButtonDetails.Add(Button(TEXT("Twin"), "first"));
	Info.ButtonDetails.Add(Button(TEXT("Twin"), "second"));
	const TSharedPtr<SNotificationItem> Item = Manager().AddNotification(Info);
	EXPECT_EQ(GetPressRefusal(0, "Press"), "the notification shows no button \"Press\"");
	Item->SetCompletionState(SNotificationItem::CS_Pending);
	EXPECT_EQ(GetPressRefusal(0, "press"), "the notification has no button \"press\"") << "the case matters";
	EXPECT_EQ(GetPressRefusal(0, "Text"), "the notification has no button \"Text\"") << "its text is no button";
	EXPECT_EQ(GetPressRefusal(0, "Twin"), "the notification shows 2 buttons \"Twin\"");
}

TEST_F(FNotificationRequestsTest, PressesTheOneOfTwoEqualButtonsThatIsShown)
{
	FNotificationInfo Info = Lasting();
	Info.ButtonDetails.Add(Button(TEXT("Close"), "failed", SNotificationItem::CS_Fail));
	Info.ButtonDetails.Add(Button(TEXT("Close"), "succeeded", SNotificationItem::CS_Success));
	Manager().AddNotification(Info)->SetCompletionState(SNotificationItem::CS_Success);
	Ask(Press(0, "Close"));
	EXPECT_EQ(Log, FLog{"succeeded"});
}

TEST_F(FNotificationRequestsTest, LeavesNoNotificationToAModulesUnloading)
{
	const TWeakPtr<SNotificationItem> Item = Manager().AddNotification(Lasting());
	Ask({{"do", "new-level"}});
	EXPECT_EQ(List().size(), 1u) << "another level is no reason to go";
	Ask({{"do", "module"}, {"name", "PlacementMode"}, {"action", "unload"}});
	EXPECT_EQ(List(), FAnswer::array());
	EXPECT_FALSE(Item.IsValid());
}

#undef LOCTEXT_NAMESPACE
