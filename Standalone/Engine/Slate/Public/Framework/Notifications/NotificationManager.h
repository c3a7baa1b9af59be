// Copyright Corvane. MIT License.
#pragma once

#include "Templates/Function.h"
#include "Widgets/Notifications/SNotificationList.h"

class SWindow;

/** The notifications on screen. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/** @return what is shown now, or null while there is no application. */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);
	/** Adds the windows of what is shown: each notification has one of its own, oldest first. */
	void GetWindows(TArray<TSharedRef<SWindow>>& OutWindows) const { OutWindows.Append(Windows); }
	/** Takes off the screen what has expired. The application calls it as it ticks. */
	void Tick();

	/** Oldest first. The real engine has no such list. */
	const TArray<TSharedRef<SNotificationItem>>& GetShown() const { return Shown; }
	/** Takes all off the screen. Those of the real engine go with their windows. */
	void CloseAll();

private:
	void CloseUnless(const TFunction<bool(const SNotificationItem&)>& Stays);

	TArray<TSharedRef<SNotificationItem>> Shown;
	/** One for each of Shown, in the same order. */
	TArray<TSharedRef<SWindow>> Windows;
};
