// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Kismet/GameplayStatics.h"
#include "Misc/AutomationTest.h"
#include "Modules/ModuleManager.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"

#include "AuthDelegates.h"
#include "ZAVSaveGame.h"

#if WITH_DEV_AUTOMATION_TESTS

// Each announcement leaves a notification on the tester's screen, to be answered with any of its buttons: nobody but
// the module can close them. So there are few, and what they show is left to the eye. So is skipping a release: that
// takes a click, or another start of the module, which would free the brushes of notifications that are on screen.

BEGIN_DEFINE_SPEC(FQuillonEditorUpgradeSpec, "Quillon.Upgrade",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	/** Announces a release. */
	void Announce(const TCHAR* DownloadAddress) const;
	/** Tests what the slot was left with by the latest announcement: never a skip, and the release before it. */
	void TestSlot(const TCHAR* Offered);

	ISaveGameSystem* SaveGames = nullptr;
	FString SlotName;
	int32 UserIndex = 0;
	/** The tester's own slot; empty if there was none. */
	TArray<uint8> Former;
END_DEFINE_SPEC(FQuillonEditorUpgradeSpec)

void FQuillonEditorUpgradeSpec::Announce(const TCHAR* DownloadAddress) const
{
	AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("2.1"), DownloadAddress);
}

void FQuillonEditorUpgradeSpec::TestSlot(const TCHAR* Offered)
{
	const UZAVSaveGame* Saved = Cast<UZAVSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, UserIndex));
	if (TestNotNull("saved", Saved))
	{
		TestFalse("skipped", Saved->bSkipVersion);
		TestTrue(FString(TEXT("offered: ")) + Offered, Saved->OfferedVersion.Equals(Offered));
	}
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
					SlotName = GetDefault<UZAVSaveGame>()->SaveSlotName;
					UserIndex = GetDefault<UZAVSaveGame>()->UserIndex;
					SaveGames = IPlatformFeaturesModule::Get().GetSaveGameSystem();
					Former.Empty();
					if (TestNotNull("save games", SaveGames) && SaveGames->DoesSaveGameExist(*SlotName, UserIndex))
					{
						SaveGames->LoadGame(false, *SlotName, UserIndex, Former);
					}
				});
			AfterEach(
				[this]()
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
				});

			It("should reach the slot only with the one that follows it",
				[this]()
				{
					Announce(TEXT("https://corvane.example/download/Release_2.1.zip"));
					Announce(TEXT("https://corvane.example/download/Release_2.2.zip"));
					TestSlot(TEXT("Release_2.1.zip"));
				});

			It("should be offered again while nobody skips it",
				[this]()
				{
					Announce(TEXT("https://corvane.example/download/Release_2.1.zip"));
					Announce(TEXT("https://corvane.example/download/Release_2.1.zip"));
					TestSlot(TEXT("Release_2.1.zip"));
				});

			It("should be known by what follows the last slash of its address",
				[this]()
				{
					Announce(TEXT("Release_2.3.zip"));
					Announce(TEXT("https://corvane.example/download/"));
					TestSlot(TEXT("Release_2.3.zip"));
					Announce(TEXT("https://corvane.example/download/release_2.3.ZIP?a=b#c"));
					TestSlot(TEXT(""));
					Announce(TEXT(""));
					TestSlot(TEXT("release_2.3.ZIP?a=b#c"));
				});
		});
}

#endif
