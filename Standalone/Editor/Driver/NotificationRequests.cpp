// Copyright Corvane. MIT License.
#include "Driver/NotificationRequests.h"

#include "ErrorText.h"
#include "StrictJson.h"

#include "AuthDelegates.h"
#include "Driver/AnswerText.h"
#include "EngineText.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "UserInput.h"
#include "WidgetFinder.h"
#include "Widgets/Input/SButton.h"

namespace
{
	FAnswer Announce(FDriverSession&, const FRequest& Request)
	{
		AuthDelegates::OnUpgradeAvailable.Broadcast(Request.GetText("version"), Request.GetText("address"));
		return FAnswer();
	}

	const char* DescribeState(const SNotificationItem& Item)
	{
		constexpr const char* Words[] = {"None", "Pending", "Success", "Fail"};
		return Words[Item.GetCompletionState()];
	}

	/** The seconds until it goes, or null while it stays. */
	FAnswer DescribeExpiry(const SNotificationItem& Item)
	{
		if (!Item.GetExpireTime().IsSet())
		{
			return nullptr;
		}
		const double Seconds = Item.GetExpireTime().GetValue() - FSlateApplication::Get().GetCurrentTime();
		return FStrictJson::Number(static_cast<float>(Seconds));
	}

	FAnswer DescribeButtons(const SNotificationItem& Item)
	{
		FAnswer Buttons = FAnswer::array();
		for (int32 Index = 0; Index < Item.GetInfo().ButtonDetails.Num(); ++Index)
		{
			const FNotificationButtonInfo& Button = Item.GetInfo().ButtonDetails[Index];
			FAnswer Answer;
			FAnswerText::Add(Answer, "label", Button.Text);
			FAnswerText::Add(Answer, "tooltip", Button.ToolTip);
			Answer["visible"] = Item.GetButtonVisibility(Index).IsVisible();
			Buttons.push_back(std::move(Answer));
		}
		return Buttons;
	}

	FAnswer ListNotifications(FDriverSession&, const FRequest&)
	{
		FAnswer Notifications = FAnswer::array();
		for (const TSharedRef<SNotificationItem>& Item : FSlateNotificationManager::Get().GetShown())
		{
			const FNotificationInfo& Info = Item->GetInfo();
			Notifications.push_back({{"text", FEngineText::ForDisplay(Info.Text.Get().ToString())},
				{"image", FAnswerText::Icon(Info.Image)}, {"state", DescribeState(*Item)},
				{"largeFont", Info.bUseLargeFont}, {"throbber", Info.bUseThrobber},
				{"fireAndForget", Info.bFireAndForget}, {"expires", DescribeExpiry(*Item)},
				{"buttons", DescribeButtons(*Item)}});
		}
		return {{"notifications", std::move(Notifications)}};
	}

	TSharedRef<SNotificationItem> FindNotification(int32 Index)
	{
		const TArray<TSharedRef<SNotificationItem>>& Shown = FSlateNotificationManager::Get().GetShown();
		if (Index >= Shown.Num())
		{
			throw FRequestError(
				"notification " + std::to_string(Index) + ": " + std::to_string(Shown.Num()) + " are on screen");
		}
		return Shown[Index];
	}

	/** Throws unless one button of that label, and no other, can be seen. */
	void CheckLabel(const SNotificationItem& Item, const FString& Label)
	{
		int32 Known = 0;
		int32 Visible = 0;
		for (int32 Index = 0; Index < Item.GetInfo().ButtonDetails.Num(); ++Index)
		{
			const bool bFits = Item.GetInfo().ButtonDetails[Index].Text.ToString().Equals(Label);
			Known += bFits ? 1 : 0;
			Visible += bFits && Item.GetButtonVisibility(Index).IsVisible() ? 1 : 0;
		}
		if (Visible != 1)
		{
			const std::string Buttons = Visible == 0 ? "no button" : std::to_string(Visible) + " buttons";
			throw FRequestError("the notification " + std::string(Known == 0 ? "has " : "shows ") + Buttons + " " +
				FErrorText::Quote(FEngineText::ForDisplay(Label)));
		}
	}

	FAnswer Press(FDriverSession&, const FRequest& Request)
	{
		const TSharedRef<SNotificationItem> Item = FindNotification(Request.GetIndex("notification"));
		const FString Label = Request.GetText("button");
		CheckLabel(*Item, Label);
		FUserInput::Click(FWidgetFinder(Item).FindButton(Label).ToSharedRef());
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FNotificationRequests::GetAll()
{
	return {{"announce", {{"version", EParameterType::Text, true}, {"address", EParameterType::Text, true}}, Announce},
		{"notifications", {}, ListNotifications},
		{"press", {{"notification", EParameterType::Index, true}, {"button", EParameterType::Text, true}}, Press}};
}
