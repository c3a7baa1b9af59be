// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include <cstdlib>
#include <dlfcn.h>

#include "AuthDelegates.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "PlatformFeatures.h"
#include "UObject/Class.h"
#include "ZAVSaveGame.h"

using nlohmann::json;

/** What comes before what when a release is offered and answered. */
class FUpgradeOrder : public FUpgradeEditor
{
protected:
	FUpgradeOrder()
	{
		IPlatformFeaturesModule::Get().SetSaveGameSystem(&SaveGames);
		SaveGames.OnSave = [this]() { Seen.push_back("save, " + DescribeScreen() + ", " + ReadSlot()); };
	}

	/** The notifications on screen: "P" for one that is pending and stays, "-" for one that goes. */
	static std::string DescribeScreen()
	{
		std::string Screen = "screen ";
		for (const TSharedRef<SNotificationItem>& Item : FSlateNotificationManager::Get().GetShown())
		{
			const bool bStays = Item->GetCompletionState() == SNotificationItem::CS_Pending;
			Screen += bStays && !Item->GetExpireTime().IsSet() ? 'P' : '-';
		}
		return Screen;
	}

	FTestSaveGames SaveGames;
	/** What happened, and what was there then: the slot is the one before the save. */
	FLog Seen;
};

TEST_F(FUpgradeOrder, SavesBeforeItShowsTheNotification)
{
	AnnounceRelease("2.1");
	EXPECT_EQ(Seen, FLog{"save, screen , (none)"});
	AnnounceRelease("2.2");
	EXPECT_EQ(Seen.back(), "save, screen P, keep ");
	EXPECT_EQ(DescribeScreen(), "screen PP");
}

TEST_F(FUpgradeOrder, SavesTheSkipBeforeItClosesTheNotification)
{
	AnnounceRelease("2.1");
	Press(0, "Skip version");
	EXPECT_EQ(Seen, (FLog{"save, screen , (none)", "save, screen P, keep "}));
	EXPECT_EQ(ReadSlot(), "skip Release_2.1.zip");
	EXPECT_EQ(DescribeScreen(), "screen ");
}

TEST_F(FUpgradeOrder, OpensTheAddressBeforeItClosesTheNotification)
{
	AnnounceRelease("2.1");
	FCoreDelegates::ShouldLaunchUrl = FCoreDelegates::FShouldLaunchUrl::CreateLambda(
		[this](const TCHAR* Address)
		{
			Seen.push_back("open " + std::string(TCHAR_TO_UTF8(Address)) + ", " + DescribeScreen());
			return false;
		});
	Press(0, "Download now");
	EXPECT_EQ(Seen, (FLog{"save, screen , (none)", "open https://corvane.example/download/Release_2.1.zip, screen P"}));
	EXPECT_EQ(DescribeScreen(), "screen ");
}

TEST_F(FUpgradeOrder, LeavesTheNextOnesSubscriptionAloneWhenAModuleIsShutDownAgain)
{
	void* const Library = dlopen("libQuillonEditor.so", RTLD_NOW | RTLD_NOLOAD);
	ASSERT_NE(Library, nullptr);
	const auto Create = reinterpret_cast<IModuleInterface* (*)()>(dlsym(Library, "InitializeModule"));
	ASSERT_NE(Create, nullptr);
	// In the process that dies only: the manager's module finds everything gone.
	EXPECT_EXIT(
		{
			IModuleInterface* const First = FModuleManager::Get().GetModule("QuillonEditor");
			First->ShutdownModule();
			const bool bNone = AuthDelegates::OnUpgradeAvailable.GetBindingCount() == 0;
			IModuleInterface* const Next = Create();
			Next->StartupModule();
			// It still has the handle of its own subscription, which is gone.
			First->ShutdownModule();
			const bool bNext = AuthDelegates::OnUpgradeAvailable.IsBoundToObject(Next);
			std::_Exit(bNone && bNext && Ask("outside")["ensures"].empty() ? 0 : 1);
		},
		::testing::ExitedWithCode(0), "");
}
