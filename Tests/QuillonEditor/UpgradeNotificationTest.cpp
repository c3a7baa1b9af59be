// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include "AuthDelegates.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "PlatformFeatures.h"
#include "Standalone/SlateNullRenderer.h"
#include "Standalone/TextFormatInspector.h"
#include "TextDescription.h"

using nlohmann::json;

/** What the notification of a release shows, and what its buttons do. */
class FUpgradeNotification : public FUpgradeEditor
{
protected:
	static TSharedRef<SNotificationItem> GetItem(int32 Index)
	{
		return FSlateNotificationManager::Get().GetShown()[Index];
	}
	/** Which of the three buttons can be seen: "111". */
	std::string GetVisibleButtons()
	{
		std::string Visible;
		const json Notifications = GetNotifications();
		for (const json& Button : Notifications[0]["buttons"])
		{
			Visible += Button["visible"] ? '1' : '0';
		}
		return Visible;
	}
};

TEST_F(FUpgradeNotification, ShowsTheVersionAndThreeButtonsInItsSettings)
{
	Announce("2.1", "https://corvane.example/download/Release_2.1.zip");
	const json Notifications = GetNotifications();
	ASSERT_EQ(Notifications.size(), 1U);
	EXPECT_EQ(Notifications[0], json::parse(R"({"text":"Corvane Quillon Upgrade\nVersion 2.1 Available\n",
		"image":{"style":"QuillonEditorStyle","brush":"ZAVQuillon.PluginNotificationIcon"},"state":"Pending",
		"largeFont":true,"throbber":false,"fireAndForget":false,"expires":null,"buttons":[
		{"label":"Download now","labelId":"FQuillonEditorModule,NewUpdatePopupDownloadNowLater",
			"tooltip":"Download now","tooltipId":"FQuillonEditorModule,NewUpdatePopupDownloadNowTT","visible":true},
		{"label":"Remind me later","labelId":"FQuillonEditorModule,NewUpdatePopupRemindMeLater",
			"tooltip":"Remind me later","tooltipId":"FQuillonEditorModule,NewUpdatePopupRemindMeLaterTT",
			"visible":true},
		{"label":"Skip version","labelId":"FQuillonEditorModule,NewUpdatePopupSkipVersion",
			"tooltip":"Skip version","tooltipId":"FQuillonEditorModule,NewUpdatePopupSkipVersionTT",
			"visible":true}]})"));
}

TEST_F(FUpgradeNotification, FormatsTheVersionIntoATranslatedPattern)
{
	AnnounceRelease("2.1");
	const FText Text = GetItem(0)->GetInfo().Text.Get();
	ASSERT_NE(FTextFormatInspector::GetPattern(Text), nullptr);
	EXPECT_EQ(DescribeText(*FTextFormatInspector::GetPattern(Text)),
		"FQuillonEditorModule,NewUpdatePopupTitle,Corvane Quillon Upgrade\nVersion {0} Available\n");
	ASSERT_EQ(FTextFormatInspector::GetArguments(Text)->Num(), 1);
	EXPECT_TRUE((*FTextFormatInspector::GetArguments(Text))[0].ToString().Equals(TEXT("2.1")));
}

TEST_F(FUpgradeNotification, NeitherWaitsNorFadesWhenItCloses)
{
	AnnounceRelease("2.1");
	EXPECT_EQ(GetItem(0)->GetInfo().ExpireDuration, 0.0f);
	EXPECT_EQ(GetItem(0)->GetInfo().FadeOutDuration, 0.0f);
}

TEST_F(FUpgradeNotification, StaysUntilItIsAnswered)
{
	AnnounceRelease("2.1");
	Ask({{"do", "advance"}, {"seconds", 1000000}});
	EXPECT_EQ(GetVersions(), FLog{"2.1"});
	Press(0, "Remind me later");
	EXPECT_EQ(GetVersions(), FLog());
}

TEST_F(FUpgradeNotification, ShowsItsButtonsInThePendingStateOnly)
{
	AnnounceRelease("2.1");
	EXPECT_EQ(GetVisibleButtons(), "111");
	for (const auto State : {SNotificationItem::CS_None, SNotificationItem::CS_Success, SNotificationItem::CS_Fail})
	{
		GetItem(0)->SetCompletionState(State);
		EXPECT_EQ(GetVisibleButtons(), "000") << State;
	}
	GetItem(0)->SetCompletionState(SNotificationItem::CS_Pending);
	EXPECT_EQ(GetVisibleButtons(), "111");
}

TEST_F(FUpgradeNotification, IsClosedByEachButtonWithoutItsButtons)
{
	for (const char* Button : {"Download now", "Remind me later", "Skip version"})
	{
		AnnounceRelease(Button);
		const TSharedRef<SNotificationItem> Item = GetItem(0);
		ASSERT_FALSE(Item->GetExpireTime().IsSet());
		Press(0, Button);
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_None) << Button;
		EXPECT_TRUE(Item->GetExpireTime().IsSet()) << Button;
		EXPECT_EQ(CountNotifications(), 0U) << Button;
	}
	EXPECT_EQ(Ask("outside")["messages"], json::array());
}

TEST_F(FUpgradeNotification, OpensTheAddressForDownloadAlone)
{
	AnnounceRelease("2.1");
	Press(0, "Remind me later");
	AnnounceRelease("2.2");
	Press(0, "Skip version");
	EXPECT_EQ(GetAddresses(), json::array());
	AnnounceRelease("2.3");
	EXPECT_EQ(GetAddresses(), json::array());
	Press(0, "Download now");
	EXPECT_EQ(GetAddresses(), json({"https://corvane.example/download/Release_2.3.zip"}));
	EXPECT_EQ(Ask("outside")["refused"], json::array());
}

TEST_F(FUpgradeNotification, HandsAddressesOnAsTheyAreForTheOpenerToJudge)
{
	const std::vector<std::string> Harmless = {
		"https://corvane.example", "HTTP://corvane.example/a/", "https://corvane.example/a%20b?c=d/e#f"};
	const std::vector<std::string> Refused = {"", "Release_2.1.zip", "ends/in/", "file:///etc/passwd",
		"javascript:alert(1)", "https://corvane.example/a\nb", "https://corvane.example/a\tb",
		"https://corvane.example/a b", "https://corvane.example/\x01\x1b[2J", "C:\\Program Files\\a.exe", "--help",
		"https://corvane.example/\xE2\x80\xAE"
		"piz.exe"};
	std::vector<std::string> Addresses = Harmless;
	Addresses.insert(Addresses.end(), Refused.begin(), Refused.end());
	for (const std::string& Address : Addresses)
	{
		Announce("2.1", Address);
		Press(0, "Download now");
		EXPECT_EQ(CountNotifications(), 0U) << Address;
	}
	EXPECT_EQ(Ask("outside")["addresses"], json(Addresses));
	EXPECT_EQ(Ask("outside")["refused"], json(Refused));
}

TEST_F(FUpgradeNotification, OpensAnAddressOfAMillionCharacters)
{
	const std::string Address = "https://corvane.example/" + std::string(1 << 20U, 'a');
	Announce("2.1", Address);
	Press(0, "Download now");
	ASSERT_EQ(GetAddresses().size(), 1U);
	EXPECT_TRUE(GetAddresses()[0] == Address);
	Announce("2.1", Address);
	Press(0, "Skip version");
	EXPECT_EQ(ReadSlot(), "skip " + std::string(1 << 20U, 'a'));
	Announce("2.1", Address);
	EXPECT_EQ(CountNotifications(), 0U);
	Announce("2.1", Address + "b");
	EXPECT_EQ(CountNotifications(), 1U);
}

TEST_F(FUpgradeNotification, ShowsAnyVersionAsItIs)
{
	const FLog Versions = {"", " ", "{0}", "{1} {Name}", "`{0}`", "2.1\nline\r\nlast",
		"\xD7\xA2\xD7\x91\xD7\xA8\xD7\x99\xD7\xAA",
		"\xE2\x80\xAE"
		"1.2",
		"\xF0\x9F\x98\x80", "a\tb\x01", "2,000,000.5", std::string(1 << 20U, '9')};
	for (const std::string& Version : Versions)
	{
		Announce(Version, "https://corvane.example/Release.zip");
	}
	EXPECT_TRUE(GetVersions() == Versions);
}

TEST_F(FUpgradeNotification, IsTheSecondOfTwoThatAButtonOnEitherCloses)
{
	for (const char* Button : {"Download now", "Remind me later", "Skip version"})
	{
		for (const size_t Pressed : {0U, 1U})
		{
			RestartEditor();
			AnnounceRelease("2.1");
			AnnounceRelease("2.2");
			ASSERT_EQ(GetVersions(), (FLog{"2.1", "2.2"}));
			Press(Pressed, Button);
			EXPECT_EQ(GetVersions(), FLog{"2.1"}) << Button << " on " << Pressed;
			EXPECT_EQ(GetItem(0)->GetCompletionState(), SNotificationItem::CS_Pending);
		}
	}
}

TEST_F(FUpgradeNotification, OpensItsOwnAddressOfTwo)
{
	AnnounceRelease("2.1");
	AnnounceRelease("2.2");
	Press(0, "Download now");
	Press(0, "Download now");
	AnnounceRelease("2.2");
	Press(1, "Download now");
	EXPECT_EQ(GetAddresses(),
		json({"https://corvane.example/download/Release_2.1.zip", "https://corvane.example/download/Release_2.1.zip",
			"https://corvane.example/download/Release_2.2.zip"}));
}

TEST_F(FUpgradeNotification, KeepsTheFirstOfTwoWhoseButtonsDoOnlyWhatTheyDo)
{
	AnnounceRelease("2.1");
	AnnounceRelease("2.2");
	Press(1, "Remind me later");
	for (const char* Button : {"Download now", "Remind me later", "Skip version", "Skip version"})
	{
		Press(0, Button);
		EXPECT_EQ(GetVersions(), FLog{"2.1"}) << Button;
		EXPECT_EQ(GetVisibleButtons(), "111") << Button;
	}
	EXPECT_EQ(GetAddresses().size(), 1U);
	EXPECT_EQ(ReadSlot(), "skip Release_2.2.zip") << "the release that was offered last";
	EXPECT_EQ(CountSaves(), 4);
	EXPECT_EQ(Ask("outside")["ensures"], json::array());
}

TEST_F(FUpgradeNotification, StacksUpForAThousandAnnouncements)
{
	FTestSaveGames SaveGames;
	IPlatformFeaturesModule::Get().SetSaveGameSystem(&SaveGames);
	FLog Versions;
	for (int Number = 0; Number < 1000; ++Number)
	{
		Versions.push_back("2." + std::to_string(Number));
		AnnounceRelease(Versions.back());
	}
	EXPECT_EQ(GetVersions(), Versions);
	EXPECT_EQ(SaveGames.Calls, FLog(1000, "save ZAVQuillon 0"));
	EXPECT_EQ(ReadSlot(), "keep Release_2.998.zip");
	Press(999, "Skip version");
	EXPECT_EQ(CountNotifications(), 999U);
	EXPECT_EQ(ReadSlot(), "skip Release_2.999.zip");
}

TEST_F(FUpgradeNotification, GoesWithTheModule)
{
	AnnounceRelease("2.1");
	RestartModule();
	EXPECT_EQ(CountNotifications(), 0U);
	Ask({{"do", "module"}, {"name", "QuillonEditor"}, {"action", "unload"}});
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 0U) << "nobody is there to hear";
	EXPECT_EQ(CountSaves(), 1);
}

TEST_F(FUpgradeNotification, IsNotShownWithoutAnApplicationAndTheReleaseIsRememberedAllTheSame)
{
	FSlateApplication::Shutdown();
	AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("2.1"), TEXT("Release_2.1.zip"));
	FSlateApplication::Create();
	FSlateApplication::Get().InitializeRenderer(MakeShared<FSlateNullRenderer>());
	EXPECT_EQ(CountNotifications(), 0U);
	EXPECT_EQ(ReadSlot(), "keep ");
	AnnounceRelease("2.2");
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip");
}
