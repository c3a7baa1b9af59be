// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Input/Reply.h"
#include "Internationalization/Text.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

struct FNotificationInfo;
struct FSlateBrush;

/**
 * A notification: an image, a text, and buttons that come and go with its completion state. The notification manager
 * makes it and keeps it while it is on screen; everybody else holds it weakly. Taken off the screen it is collapsed,
 * for whoever still holds it. Nothing is shown of what it is told then.
 */
class SLATE_API SNotificationItem : public SCompoundWidget
{
public:
	/** How far that is which it tells of. */
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail,
	};

	SLATE_BEGIN_ARGS(SNotificationItem) : _Info(nullptr) {}
	/** What is shown; copied. */
	SLATE_ARGUMENT(const FNotificationInfo*, Info)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	ECompletionState GetCompletionState() const { return CompletionState; }
	void SetCompletionState(ECompletionState State) { CompletionState = State; }
	/** From now on it stays for its expire duration and then its fade-out duration, however far a former call is. */
	void ExpireAndFadeout();

	/** As it was added. The real engine keeps this getter and the two after it to itself. */
	const FNotificationInfo& GetInfo() const { return *Info; }
	/** When it goes, in the application's time; unset while it stays. */
	const TOptional<double>& GetExpireTime() const { return ExpireTime; }
	/** In the present completion state. */
	EVisibility GetButtonVisibility(int32 Index) const;

private:
	TSharedRef<SWidget> MakeButtons();
	FReply OnButtonClicked(int32 Index);

	TSharedPtr<const FNotificationInfo> Info;
	ECompletionState CompletionState = CS_None;
	TOptional<double> ExpireTime;
};

/** A button on a notification. It is visible in one completion state and collapsed in the others, unless told
 * otherwise. */
struct SLATE_API FNotificationButtonInfo
{
	FNotificationButtonInfo(const FText& InText, const FText& InToolTip, FSimpleDelegate InCallback,
		SNotificationItem::ECompletionState VisibleInState = SNotificationItem::CS_Pending);

	FText Text;
	FText ToolTip;
	FSimpleDelegate Callback;
	EVisibility VisibilityOnNone;
	EVisibility VisibilityOnPending;
	EVisibility VisibilityOnSuccess;
	EVisibility VisibilityOnFail;
};

/** What a notification shows and how long it stays. Durations are in seconds. */
struct FNotificationInfo
{
	FNotificationInfo(const FText& InText) : Text(InText) {}

	TAttribute<FText> Text;
	TArray<FNotificationButtonInfo> ButtonDetails;
	const FSlateBrush* Image = nullptr;
	float FadeOutDuration = 2.0f;
	/** How long it stays before it fades out. */
	float ExpireDuration = 1.0f;
	/** Whether something turns to show that work goes on. */
	bool bUseThrobber = true;
	bool bUseLargeFont = true;
	/** Whether it expires by itself, from the beginning. */
	bool bFireAndForget = true;
};
