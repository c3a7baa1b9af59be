// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class SNotificationItem;

/**
 * A user in front of the notifications on screen, who reads them and presses their buttons. A notification is known by
 * its whole text, letter for letter.
 */
class FNotificationUser
{
public:
	/** All on screen with this text, in no particular order. One that goes may be there until the next frames. */
	static TArray<TSharedRef<SNotificationItem>> FindAll(const FString& Text);
	/** Those of them that wait for an answer. */
	static TArray<TSharedRef<SNotificationItem>> FindPending(const FString& Text);

	/** The namespaces, keys and sources of the labels of the buttons that are shown, each followed by "; ". */
	static FString DescribeButtons(const TSharedRef<SNotificationItem>& Notification);

	/** Presses the button with this label on the pending notification. @return false if no such button is shown. */
	static bool Press(const FString& Text, const TCHAR* Label);

	/** Takes those that wait for an answer off the screen without giving one. */
	static void Dismiss(const FString& Text);
};
