// Copyright Corvane. MIT License.
#include "NotificationUser.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Layout/Children.h"
#include "Widgets/Notifications/SNotificationList.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include "WidgetUser.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	FText GetNotificationText(const TSharedRef<SWidget>& TextBlock)
	{
		return StaticCastSharedRef<STextBlock>(TextBlock)->GetText();
	}

	bool ShowsNotificationText(const TSharedRef<SWidget>& Widget, const FString& Text)
	{
		for (const TSharedRef<SWidget>& TextBlock : FWidgetUser::FindAll(Widget, TEXT("STextBlock")))
		{
			if (GetNotificationText(TextBlock).ToString().Equals(Text))
			{
				return true;
			}
		}
		return false;
	}

	void CollectNotifications(
		const TSharedRef<SWidget>& Widget, const FString& Text, TArray<TSharedRef<SNotificationItem>>& OutNotifications)
	{
		// SNotificationItem is only the base in the engine; what is on screen is called after it.
		if (Widget->GetTypeAsString().StartsWith(TEXT("SNotificationItem")))
		{
			if (ShowsNotificationText(Widget, Text))
			{
				OutNotifications.Add(StaticCastSharedRef<SNotificationItem>(Widget));
			}
			return;
		}
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			CollectNotifications(Children->GetChildAt(Index), Text, OutNotifications);
		}
	}

	TArray<TSharedRef<SWidget>> FindShownButtons(const TSharedRef<SNotificationItem>& Notification)
	{
		TArray<TSharedRef<SWidget>> Shown;
		for (const TSharedRef<SWidget>& Button : FWidgetUser::FindAll(Notification, TEXT("SButton")))
		{
			if (FWidgetUser::IsShown(Notification, Button))
			{
				Shown.Add(Button);
			}
		}
		return Shown;
	}
}

TArray<TSharedRef<SNotificationItem>> FNotificationUser::FindAll(const FString& Text)
{
	TArray<TSharedRef<SWindow>> Windows;
	FSlateNotificationManager::Get().GetWindows(Windows);
	TArray<TSharedRef<SNotificationItem>> Notifications;
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		CollectNotifications(Window, Text, Notifications);
	}
	return Notifications;
}

TArray<TSharedRef<SNotificationItem>> FNotificationUser::FindPending(const FString& Text)
{
	TArray<TSharedRef<SNotificationItem>> Pending;
	for (const TSharedRef<SNotificationItem>& Notification : FindAll(Text))
	{
		if (Notification->GetCompletionState() == SNotificationItem::CS_Pending)
		{
			Pending.Add(Notification);
		}
	}
	return Pending;
}

FString FNotificationUser::DescribeButtons(const TSharedRef<SNotificationItem>& Notification)
{
	FString Labels;
	for (const TSharedRef<SWidget>& Button : FindShownButtons(Notification))
	{
		for (const TSharedRef<SWidget>& Label : FWidgetUser::FindAll(Button, TEXT("STextBlock")))
		{
			Labels += DescribeText(GetNotificationText(Label)) + TEXT("; ");
		}
	}
	return Labels;
}

bool FNotificationUser::Press(const FString& Text, const TCHAR* Label)
{
	for (const TSharedRef<SNotificationItem>& Notification : FindPending(Text))
	{
		for (const TSharedRef<SWidget>& Button : FindShownButtons(Notification))
		{
			if (ShowsNotificationText(Button, Label))
			{
				FWidgetUser::Click(Button);
				return true;
			}
		}
	}
	return false;
}

void FNotificationUser::Dismiss(const FString& Text)
{
	for (const TSharedRef<SNotificationItem>& Notification : FindPending(Text))
	{
		Notification->SetCompletionState(SNotificationItem::CS_None);
		Notification->ExpireAndFadeout();
	}
}

#endif
