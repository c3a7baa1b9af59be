// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "Framework/Notifications/NotificationManager.h"
#include "HAL/PlatformProcess.h"
#include "Kismet/GameplayStatics.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Templates/Casts.h"
#include "Widgets/Notifications/SNotificationList.h"

#include "QuillonEditorStyle.h"
#include "ZAVSaveGame.h"

// The notification of a newer release, and what is remembered of the user's answer.

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

namespace
{
	/** Where a release's identifier begins in the address of its download: after the last "/", or at the beginning. */
	int32 FindIdentifier(const FString& DownloadAddress)
	{
		int32 LastSlash = INDEX_NONE;
		DownloadAddress.FindLastChar(TEXT('/'), LastSlash);
		return LastSlash + 1;
	}

	/** Whether the address ends in just that identifier, letter for letter. Takes no memory. */
	bool HasIdentifier(const FString& DownloadAddress, const FString& Identifier)
	{
		if (DownloadAddress.Len() - FindIdentifier(DownloadAddress) != Identifier.Len())
		{
			return false;
		}
		// No string counts as one that ends in an empty one.
		return Identifier.IsEmpty() || DownloadAddress.EndsWith(Identifier, ESearchCase::CaseSensitive);
	}

	UZAVSaveGame* CreateSaveGame()
	{
		return CastChecked<UZAVSaveGame>(UGameplayStatics::CreateSaveGameObject(UZAVSaveGame::StaticClass()));
	}

	FNotificationInfo MakeNotificationInfo(const FString& Version)
	{
		FNotificationInfo Info(
			FText::Format(LOCTEXT("NewUpdatePopupTitle", "Corvane Quillon Upgrade\nVersion {0} Available\n"),
				FText::FromString(Version)));
		Info.Image = FQuillonEditorStyle::Get().GetBrush("ZAVQuillon.PluginNotificationIcon");
		// It stays until it is answered, and then goes at once.
		Info.bFireAndForget = false;
		Info.FadeOutDuration = 0.0f;
		Info.ExpireDuration = 0.0f;
		Info.bUseLargeFont = true;
		Info.bUseThrobber = false;
		return Info;
	}
}

void FQuillonEditorModule::LoadUpgradeState()
{
	// Only to learn which slot it is.
	const UZAVSaveGame* Defaults = CreateSaveGame();
	ISaveGameSystem* SaveGames = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	// Loading a slot that is not there would be reported as a failure.
	if (!SaveGames || !SaveGames->DoesSaveGameExist(*Defaults->SaveSlotName, Defaults->UserIndex))
	{
		return;
	}
	const UZAVSaveGame* Saved =
		Cast<UZAVSaveGame>(UGameplayStatics::LoadGameFromSlot(Defaults->SaveSlotName, Defaults->UserIndex));
	if (IsValid(Saved))
	{
		bSkipVersion = Saved->bSkipVersion;
		OfferedVersion = Saved->OfferedVersion;
	}
}

void FQuillonEditorModule::SaveUpgradeState()
{
	UZAVSaveGame* SaveGame = CreateSaveGame();
	SaveGame->bSkipVersion = bSkipVersion;
	SaveGame->OfferedVersion = OfferedVersion;
	// A release that is offered once too often does no harm: nobody is told of a save that failed.
	UGameplayStatics::SaveGameToSlot(SaveGame, SaveGame->SaveSlotName, SaveGame->UserIndex);
}

void FQuillonEditorModule::HandleUpgradeAvailable(FString Version, FString DownloadAddress)
{
	if (bSkipVersion && HasIdentifier(DownloadAddress, OfferedVersion))
	{
		return;
	}
	// The slot gets the cleared flag with the identifier that was offered before. The new one is set only then, and is
	// saved when the user skips it: nothing is to be remembered of a release that was merely offered.
	bSkipVersion = false;
	SaveUpgradeState();
	OfferedVersion = DownloadAddress.RightChop(FindIdentifier(DownloadAddress));
	ShowUpgradeNotification(Version, DownloadAddress);
}

void FQuillonEditorModule::ShowUpgradeNotification(const FString& Version, const FString& DownloadAddress)
{
	using FModule = FQuillonEditorModule;
	FNotificationInfo Info = MakeNotificationInfo(Version);
	// Translations are looked up by the established keys: the first label's own ends in "DownloadNowLater".
	Info.ButtonDetails.Add(FNotificationButtonInfo(LOCTEXT("NewUpdatePopupDownloadNowLater", "Download now"),
		LOCTEXT("NewUpdatePopupDownloadNowTT", "Download now"),
		FSimpleDelegate::CreateRaw(this, &FModule::OnDownloadNowClicked, DownloadAddress),
		SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(LOCTEXT("NewUpdatePopupRemindMeLater", "Remind me later"),
		LOCTEXT("NewUpdatePopupRemindMeLaterTT", "Remind me later"),
		FSimpleDelegate::CreateRaw(this, &FModule::OnRemindMeLaterClicked), SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(LOCTEXT("NewUpdatePopupSkipVersion", "Skip version"),
		LOCTEXT("NewUpdatePopupSkipVersionTT", "Skip version"),
		FSimpleDelegate::CreateRaw(this, &FModule::OnSkipVersionClicked), SNotificationItem::CS_Pending));

	const TSharedPtr<SNotificationItem> Notification = FSlateNotificationManager::Get().AddNotification(Info);
	UpgradeNotification = Notification;
	// An editor without windows shows none.
	if (Notification.IsValid())
	{
		// The state in which the buttons are visible.
		Notification->SetCompletionState(SNotificationItem::CS_Pending);
	}
}

void FQuillonEditorModule::CloseUpgradeNotification()
{
	// Of two notifications on screen this is the second, whichever of them was answered. Once it is gone, the first
	// one's buttons close nothing; its "Skip version" skips and saves the release that was offered last, the second's.
	const TSharedPtr<SNotificationItem> Notification = UpgradeNotification.Pin();
	if (Notification.IsValid())
	{
		Notification->SetCompletionState(SNotificationItem::CS_None);
		Notification->ExpireAndFadeout();
	}
}

void FQuillonEditorModule::OnDownloadNowClicked(FString DownloadAddress)
{
	FPlatformProcess::LaunchURL(*DownloadAddress, nullptr, nullptr);
	CloseUpgradeNotification();
}

void FQuillonEditorModule::OnRemindMeLaterClicked()
{
	CloseUpgradeNotification();
}

void FQuillonEditorModule::OnSkipVersionClicked()
{
	bSkipVersion = true;
	SaveUpgradeState();
	CloseUpgradeNotification();
}

#undef LOCTEXT_NAMESPACE
