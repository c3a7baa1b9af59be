// Copyright Corvane. MIT License.
#pragma once

#include "SlateFixture.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Widgets/SWindow.h"

/** An application whose clock is turned by hand, and notifications on it. */
class FNotificationFixture : public FSlateFixture
{
protected:
	FNotificationFixture() { TurnTo(0.0); }

	static FSlateNotificationManager& Manager() { return FSlateNotificationManager::Get(); }
	static void TurnTo(double Seconds)
	{
		App().SetCurrentTime(Seconds);
		App().Tick();
	}
	/** A notification that stays until it is told to go, which it then does at once. */
	static FNotificationInfo Lasting(const TCHAR* Text = TEXT("Text"))
	{
		FNotificationInfo Info(FText::FromString(Text));
		Info.bFireAndForget = false;
		Info.ExpireDuration = 0.0f;
		Info.FadeOutDuration = 0.0f;
		return Info;
	}
	static FNotificationButtonInfo Button(const TCHAR* Label, const FSimpleDelegate& Callback,
		SNotificationItem::ECompletionState State = SNotificationItem::CS_None)
	{
		return FNotificationButtonInfo(FText::FromString(Label), FText(), Callback, State);
	}
	static TSharedRef<SNotificationItem> Show(const FNotificationInfo& Info)
	{
		return Manager().AddNotification(Info).ToSharedRef();
	}
	/** The texts of what is on screen, oldest first. */
	static std::vector<std::string> GetTexts()
	{
		std::vector<std::string> Texts;
		for (const TSharedRef<SNotificationItem>& Item : Manager().GetShown())
		{
			Texts.emplace_back(TCHAR_TO_UTF8(*Item->GetInfo().Text.Get().ToString()));
		}
		return Texts;
	}
	static TArray<TSharedRef<SWindow>> GetWindows()
	{
		TArray<TSharedRef<SWindow>> Windows;
		Manager().GetWindows(Windows);
		return Windows;
	}
	/** All widgets of a type, each before its children. */
	static TArray<TSharedRef<SWidget>> FindAll(const TSharedRef<SWidget>& Root, const ANSICHAR* Type)
	{
		TArray<TSharedRef<SWidget>> Found;
		if (Root->GetType() == FName(Type))
		{
			Found.Add(Root);
		}
		for (int32 Index = 0; Index < Root->GetChildren()->Num(); ++Index)
		{
			Found.Append(FindAll(Root->GetChildren()->GetChildAt(Index), Type));
		}
		return Found;
	}

	typedef std::vector<std::string> FTexts;
};
