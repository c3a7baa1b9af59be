// Copyright Corvane. MIT License.
#include "Widgets/Notifications/SNotificationList.h"

#include "Framework/Application/SlateApplication.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	EVisibility VisibleIf(bool bVisible)
	{
		return bVisible ? EVisibility::Visible : EVisibility::Collapsed;
	}
}

FNotificationButtonInfo::FNotificationButtonInfo(const FText& InText, const FText& InToolTip,
	FSimpleDelegate InCallback, SNotificationItem::ECompletionState VisibleInState)
	: Text(InText),
	  ToolTip(InToolTip),
	  Callback(InCallback),
	  VisibilityOnNone(VisibleIf(VisibleInState == SNotificationItem::CS_None)),
	  VisibilityOnPending(VisibleIf(VisibleInState == SNotificationItem::CS_Pending)),
	  VisibilityOnSuccess(VisibleIf(VisibleInState == SNotificationItem::CS_Success)),
	  VisibilityOnFail(VisibleIf(VisibleInState == SNotificationItem::CS_Fail))
{}

void SNotificationItem::Construct(const FArguments& InArgs)
{
	check(InArgs._Info != nullptr);
	Info = MakeShared<FNotificationInfo>(*InArgs._Info);
	const FSlateFontInfo Font = Info->bUseLargeFont ? FCoreStyle::GetDefaultFontStyle("Bold", 16)
													: FCoreStyle::GetDefaultFontStyle("Light", 12);
	// clang-format off
	ChildSlot.Padding(8.0f)
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(0.0f, 0.0f, 8.0f, 0.0f)
		[
			SNew(SImage).Image(Info->Image)
		]
		+ SHorizontalBox::Slot().AutoWidth()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(Info->Text).Font(Font)]
			+ SVerticalBox::Slot().AutoHeight()[MakeButtons()]
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SNotificationItem::MakeButtons()
{
	SHorizontalBox::FArguments Row;
	for (int32 Index = 0; Index < Info->ButtonDetails.Num(); ++Index)
	{
		// clang-format off
		Row + SHorizontalBox::Slot().AutoWidth().Padding(0.0f, 0.0f, 4.0f, 0.0f)
		[
			SNew(SButton)
				.Visibility(this, &SNotificationItem::GetButtonVisibility, Index)
				.OnClicked(this, &SNotificationItem::OnButtonClicked, Index)
				[
					SNew(STextBlock).Text(Info->ButtonDetails[Index].Text)
				]
		];
		// clang-format on
	}
	return MakeTDecl<SHorizontalBox>("SHorizontalBox") <<= Row;
}

void SNotificationItem::ExpireAndFadeout()
{
	if (FSlateApplication::IsInitialized())
	{
		ExpireTime = FSlateApplication::Get().GetCurrentTime() + Info->ExpireDuration + Info->FadeOutDuration;
	}
}

EVisibility SNotificationItem::GetButtonVisibility(int32 Index) const
{
	const FNotificationButtonInfo& Button = Info->ButtonDetails[Index];
	const EVisibility ByState[] = {
		Button.VisibilityOnNone, Button.VisibilityOnPending, Button.VisibilityOnSuccess, Button.VisibilityOnFail};
	return ByState[CompletionState];
}

FReply SNotificationItem::OnButtonClicked(int32 Index)
{
	Info->ButtonDetails[Index].Callback.ExecuteIfBound();
	return FReply::Handled();
}
