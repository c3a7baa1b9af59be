// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Framework/Application/SlateApplication.h"
#include "Kismet/GameplayStatics.h"
#include "Misc/AutomationTest.h"
#include "Modules/ModuleManager.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "Widgets/Notifications/SNotificationList.h"

#include "AuthDelegates.h"
#include "NotificationUser.h"
#include "ZAVSaveGame.h"

#if WITH_DEV_AUTOMATION_TESTS

// The notifications come up on the tester's screen and are taken off it after each case. "Download now" is left to the
// eye: it opens the tester's browser. So is the notification's picture. No case starts the module anew, which would
// free the brushes of notifications that are on screen. The tester's slot is put back, but the module goes on without a
// release to skip until the editor starts again.

BEGIN_DEFINE_SPEC(FQuillonEditorUpgradeSpec, "Quillon.Upgrade",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	/** The text of the notification that offers a version. */
	static FString GetTitle(const FString& Version);
	/** Announces a release: its version, and the end of its address. */
	void Announce(const TCHAR* Version, const TCHAR* File);
	/** Announces a release by its whole address. */
	void AnnounceAddress(const TCHAR* Version, const TCHAR* DownloadAddress);
	void Press(const TCHAR* Version, const TCHAR* Label);
	/** Takes everything off the screen that was announced. The module skips nothing then, and what it offered last has
	 * an empty identifier. */
	void Forget();

	/** Tests how many notifications of this version wait for an answer. */
	void TestPending(const TCHAR* Version, int32 Expected);
	/** Tests which buttons are shown, by the namespaces, keys and sources of their labels. */
	void TestButtons(const TSharedRef<SNotificationItem>& Notification, const FString& Expected);
	/** Tests what is in the slot. */
	void TestSlot(bool bSkipped, const TCHAR* Offered);
	TArray<uint8> ReadSlot() const;
	/** Puts into the slot what the module has no reason to save. */
	void MarkSlot();
	/** Tests that nothing was saved since the slot was marked. */
	void TestMark();

	void FindSlot();
	void RestoreSlot();

	void DefineNotification();
	void DefineIdentifiers();
	void DefineRemindMeLater();
	void DefineSkipVersion();
	void DefineOtherReleases();
	void DefineTwo();

	/** What was announced by the case that runs. */
	TArray<FString> Versions;
	ISaveGameSystem* SaveGames = nullptr;
	FString SlotName;
	int32 UserIndex = 0;
	/** The tester's own slot; empty if there was none. */
	TArray<uint8> Former;
	TArray<uint8> Marked;
END_DEFINE_SPEC(FQuillonEditorUpgradeSpec)

FString FQuillonEditorUpgradeSpec::GetTitle(const FString& Version)
{
	return TEXT("Corvane Quillon Upgrade\nVersion ") + Version + TEXT(" Available\n");
}

void FQuillonEditorUpgradeSpec::Announce(const TCHAR* Version, const TCHAR* File)
{
	AnnounceAddress(Version, *(FString(TEXT("https://corvane.example/download/")) + File));
}

void FQuillonEditorUpgradeSpec::AnnounceAddress(const TCHAR* Version, const TCHAR* DownloadAddress)
{
	Versions.Add(Version);
	AuthDelegates::OnUpgradeAvailable.Broadcast(Version, DownloadAddress);
}

void FQuillonEditorUpgradeSpec::Press(const TCHAR* Version, const TCHAR* Label)
{
	TestTrue(FString(TEXT("pressed: ")) + Label, FNotificationUser::Press(GetTitle(Version), Label));
}

void FQuillonEditorUpgradeSpec::Forget()
{
	Announce(TEXT("of no case"), TEXT("Release_of_no_case.zip"));
	Announce(TEXT("of no case"), TEXT(""));
	for (const FString& Version : Versions)
	{
		FNotificationUser::Dismiss(GetTitle(Version));
	}
	Versions.Empty();
}

void FQuillonEditorUpgradeSpec::TestPending(const TCHAR* Version, int32 Expected)
{
	TestEqual(FString(TEXT("pending: ")) + Version, FNotificationUser::FindPending(GetTitle(Version)).Num(), Expected);
}

void FQuillonEditorUpgradeSpec::TestButtons(const TSharedRef<SNotificationItem>& Notification, const FString& Expected)
{
	const FString Actual = FNotificationUser::DescribeButtons(Notification);
	TestTrue(TEXT("buttons: ") + Actual, Actual.Equals(Expected));
}

void FQuillonEditorUpgradeSpec::TestSlot(bool bSkipped, const TCHAR* Offered)
{
	const UZAVSaveGame* Saved = Cast<UZAVSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, UserIndex));
	if (TestNotNull("saved", Saved))
	{
		TestTrue(bSkipped ? TEXT("skipped") : TEXT("not skipped"), Saved->bSkipVersion == bSkipped);
		TestTrue(FString(TEXT("offered: ")) + Offered, Saved->OfferedVersion.Equals(Offered));
	}
}

TArray<uint8> FQuillonEditorUpgradeSpec::ReadSlot() const
{
	TArray<uint8> Bytes;
	if (SaveGames && SaveGames->DoesSaveGameExist(*SlotName, UserIndex))
	{
		SaveGames->LoadGame(false, *SlotName, UserIndex, Bytes);
	}
	return Bytes;
}

void FQuillonEditorUpgradeSpec::MarkSlot()
{
	UZAVSaveGame* SaveGame = Cast<UZAVSaveGame>(UGameplayStatics::CreateSaveGameObject(UZAVSaveGame::StaticClass()));
	SaveGame->bSkipVersion = true;
	SaveGame->OfferedVersion = TEXT("Release_that_is_never_announced.zip");
	TestTrue("marked", UGameplayStatics::SaveGameToSlot(SaveGame, SlotName, UserIndex));
	Marked = ReadSlot();
}

void FQuillonEditorUpgradeSpec::TestMark()
{
	TestTrue("nothing saved", Marked.Num() > 0 && ReadSlot() == Marked);
}

void FQuillonEditorUpgradeSpec::FindSlot()
{
	SlotName = GetDefault<UZAVSaveGame>()->SaveSlotName;
	UserIndex = GetDefault<UZAVSaveGame>()->UserIndex;
	SaveGames = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	TestNotNull("save games", SaveGames);
	Former = ReadSlot();
}

void FQuillonEditorUpgradeSpec::RestoreSlot()
{
	if (!SaveGames)
	{
		return;
	}
	if (Former.Num() > 0)
	{
		SaveGames->SaveGame(false, *SlotName, UserIndex, Former);
		return;
	}
	// As good as no slot.
	UGameplayStatics::SaveGameToSlot(
		UGameplayStatics::CreateSaveGameObject(UZAVSaveGame::StaticClass()), SlotName, UserIndex);
}

void FQuillonEditorUpgradeSpec::Define()
{
	Describe("The module",
		[this]()
		{
			It("should listen to announcements of releases",
				[this]()
				{
					const IModuleInterface* Module = FModuleManager::Get().GetModule("QuillonEditor");
					TestTrue("bound", Module && AuthDelegates::OnUpgradeAvailable.IsBoundToObject(Module));
				});
		});

	Describe("An announced release",
		[this]()
		{
			BeforeEach(
				[this]()
				{
					FindSlot();
					Forget();
				});
			AfterEach(
				[this]()
				{
					Forget();
					RestoreSlot();
				});

			DefineNotification();
			DefineIdentifiers();
			Describe("answered by \"Remind me later\"", [this]() { DefineRemindMeLater(); });
			Describe("answered by \"Skip version\"", [this]() { DefineSkipVersion(); });
			Describe("while another one is on screen", [this]() { DefineTwo(); });
		});
}

void FQuillonEditorUpgradeSpec::DefineNotification()
{
	It("should be offered by a notification of three lines, the last one empty",
		[this]()
		{
			TestPending(TEXT("2.1"), 0);
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
		});

	It("should be offered under its version as it is",
		[this]()
		{
			Announce(TEXT("{0} of \"2,000.5\""), TEXT("Release_2.1.zip"));
			TestPending(TEXT("{0} of \"2,000.5\""), 1);
		});

	It("should be offered by a notification with three buttons, shown while it waits for an answer",
		[this]()
		{
			const FString Three = TEXT("FQuillonEditorModule,NewUpdatePopupDownloadNowLater,Download now; ")
				TEXT("FQuillonEditorModule,NewUpdatePopupRemindMeLater,Remind me later; ")
					TEXT("FQuillonEditorModule,NewUpdatePopupSkipVersion,Skip version; ");
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			const TArray<TSharedRef<SNotificationItem>> Pending = FNotificationUser::FindPending(GetTitle(TEXT("2.1")));
			if (!TestEqual("pending", Pending.Num(), 1))
			{
				return;
			}
			TestButtons(Pending[0], Three);
			for (const SNotificationItem::ECompletionState State :
				{SNotificationItem::CS_None, SNotificationItem::CS_Success, SNotificationItem::CS_Fail})
			{
				Pending[0]->SetCompletionState(State);
				TestButtons(Pending[0], FString());
			}
			Pending[0]->SetCompletionState(SNotificationItem::CS_Pending);
			TestButtons(Pending[0], Three);
		});
}

void FQuillonEditorUpgradeSpec::DefineIdentifiers()
{
	It("should reach the slot only with the one that follows it",
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestSlot(false, TEXT(""));
			Announce(TEXT("2.2"), TEXT("Release_2.2.zip"));
			TestSlot(false, TEXT("Release_2.1.zip"));
		});

	It("should be offered again while nobody skips it",
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 2);
			TestSlot(false, TEXT("Release_2.1.zip"));
		});

	It("should be known by what follows the last slash of its address",
		[this]()
		{
			AnnounceAddress(TEXT("2.3"), TEXT("Release_2.3.zip"));
			AnnounceAddress(TEXT("2.3"), TEXT("https://corvane.example/download/"));
			TestSlot(false, TEXT("Release_2.3.zip"));
			AnnounceAddress(TEXT("2.3"), TEXT("https://corvane.example/download/release_2.3.ZIP?a=b#c"));
			TestSlot(false, TEXT(""));
			AnnounceAddress(TEXT("2.3"), TEXT(""));
			TestSlot(false, TEXT("release_2.3.ZIP?a=b#c"));
		});
}

void FQuillonEditorUpgradeSpec::DefineRemindMeLater()
{
	BeforeEach(
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			MarkSlot();
			Press(TEXT("2.1"), TEXT("Remind me later"));
		});

	It("should wait no longer and leave the slot as it is",
		[this]()
		{
			TestPending(TEXT("2.1"), 0);
			TestMark();
		});

	It("should leave the screen",
		[this]()
		{
			// At once, which takes a frame or two.
			const FString Title = GetTitle(TEXT("2.1"));
			for (int32 Frame = 0; Frame < 100 && FNotificationUser::FindAll(Title).Num() > 0; ++Frame)
			{
				FSlateApplication::Get().Tick();
			}
			TestEqual("on screen", FNotificationUser::FindAll(Title).Num(), 0);
		});

	It("should be offered at its next announcement",
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
			TestSlot(false, TEXT("Release_2.1.zip"));
		});
}

void FQuillonEditorUpgradeSpec::DefineSkipVersion()
{
	BeforeEach(
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			Press(TEXT("2.1"), TEXT("Skip version"));
		});

	It("should wait no longer and be in the slot as skipped",
		[this]()
		{
			TestPending(TEXT("2.1"), 0);
			TestSlot(true, TEXT("Release_2.1.zip"));
		});

	It("should not be offered again, nor anything be saved",
		[this]()
		{
			MarkSlot();
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			AnnounceAddress(TEXT("2.1"), TEXT("Release_2.1.zip"));
			Announce(TEXT("2.1"), TEXT("older/Release_2.1.zip"));
			TestPending(TEXT("2.1"), 0);
			TestMark();
		});

	It("should be skipped no longer once another one is announced",
		[this]()
		{
			Announce(TEXT("2.2"), TEXT("Release_2.2.zip"));
			TestPending(TEXT("2.2"), 1);
			TestSlot(false, TEXT("Release_2.1.zip"));
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
			TestSlot(false, TEXT("Release_2.2.zip"));
		});

	DefineOtherReleases();
}

void FQuillonEditorUpgradeSpec::DefineOtherReleases()
{
	It("should be another one than one in other letter case",
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("release_2.1.ZIP"));
			TestPending(TEXT("2.1"), 1);
			TestSlot(false, TEXT("Release_2.1.zip"));
		});

	It("should be another one than one that is only longer or shorter",
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("New_Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
			Press(TEXT("2.1"), TEXT("Skip version"));
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
		});

	It("should be known by an empty identifier as well as by any other",
		[this]()
		{
			Announce(TEXT("2.2"), TEXT(""));
			Press(TEXT("2.2"), TEXT("Skip version"));
			TestSlot(true, TEXT(""));
			MarkSlot();
			AnnounceAddress(TEXT("2.2"), TEXT(""));
			TestPending(TEXT("2.2"), 0);
			TestMark();
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			TestPending(TEXT("2.1"), 1);
		});
}

void FQuillonEditorUpgradeSpec::DefineTwo()
{
	BeforeEach(
		[this]()
		{
			Announce(TEXT("2.1"), TEXT("Release_2.1.zip"));
			Announce(TEXT("2.2"), TEXT("Release_2.2.zip"));
			TestPending(TEXT("2.1"), 1);
			TestPending(TEXT("2.2"), 1);
		});

	for (const TCHAR* Label : {TEXT("Remind me later"), TEXT("Skip version")})
	{
		for (const TCHAR* Version : {TEXT("2.1"), TEXT("2.2")})
		{
			It(FString(TEXT("should stay when \"")) + Label + TEXT("\" for ") + Version + TEXT(" closes the second"),
				[this, Label, Version]()
				{
					Press(Version, Label);
					TestPending(TEXT("2.1"), 1);
					TestPending(TEXT("2.2"), 0);
				});
		}
	}

	It("should skip the second by its button",
		[this]()
		{
			Press(TEXT("2.1"), TEXT("Skip version"));
			TestSlot(true, TEXT("Release_2.2.zip"));
			Announce(TEXT("2.2"), TEXT("Release_2.2.zip"));
			TestPending(TEXT("2.2"), 0);
		});

	It("should stay when its buttons have nothing left to close",
		[this]()
		{
			Press(TEXT("2.2"), TEXT("Remind me later"));
			Press(TEXT("2.1"), TEXT("Remind me later"));
			TestPending(TEXT("2.1"), 1);
		});
}

#endif
