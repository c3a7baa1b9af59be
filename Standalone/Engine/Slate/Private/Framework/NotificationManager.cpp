// Copyright Corvane. MIT License.
#include "Framework/Notifications/NotificationManager.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWindow.h"

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static FSlateNotificationManager Instance;
	return Instance;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	if (!FSlateApplication::IsInitialized())
	{
		return nullptr;
	}
	const TSharedRef<SNotificationItem> Item = SNew(SNotificationItem).Info(&Info);
	Shown.Add(Item);
	Windows.Add(SNew(SWindow)[Item]);
	if (Info.bFireAndForget)
	{
		Item->ExpireAndFadeout();
	}
	return Item;
}

void FSlateNotificationManager::Tick()
{
	const double Now = FSlateApplication::Get().GetCurrentTime();
	CloseUnless([Now](const SNotificationItem& Item)
		{ return !Item.GetExpireTime().IsSet() || Now < Item.GetExpireTime().GetValue(); });
}

void FSlateNotificationManager::CloseAll()
{
	CloseUnless([](const SNotificationItem&) { return false; });
}

void FSlateNotificationManager::CloseUnless(const TFunction<bool(const SNotificationItem&)>& Stays)
{
	// Keeps what goes until the list is whole again: what its callbacks hold dies with it, and may come back here.
	const TArray<TSharedRef<SNotificationItem>> Before = Shown;
	for (int32 Index = Before.Num() - 1; Index >= 0; --Index)
	{
		if (!Stays(*Before[Index]))
		{
			Before[Index]->SetVisibility(EVisibility::Collapsed);
			Shown.RemoveAt(Index);
			Windows.RemoveAt(Index);
		}
	}
}
