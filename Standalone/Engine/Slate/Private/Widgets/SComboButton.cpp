// Copyright Corvane. MIT License.
#include "Widgets/Input/SComboButton.h"

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SBoxPanel.h"

void SComboButton::ConstructButton(
	const TSharedRef<SWidget>& Content, const TAttribute<FMargin>& ContentPadding, const FSimpleDelegate& InOnOpening)
{
	OnOpening = InOnOpening;
	// An arrow of 8 units within a padding of 2.
	const float ArrowWidth = 12.0f;
	// clang-format off
	ChildSlot.Padding(ContentPadding)
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().Padding(0.0f, 0.0f, ArrowWidth, 0.0f).VAlign(VAlign_Center)[Content]
	];
	// clang-format on
}

void SComboButton::SetIsOpen(bool bInIsOpen)
{
	if (bInIsOpen && !bIsOpen)
	{
		OnOpening.ExecuteIfBound();
	}
	bIsOpen = bInIsOpen;
}

void SComboButton::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SPressable::OnFocusLost(InFocusEvent);
	SetIsOpen(false);
}

FReply SComboButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Up || Key == EKeys::Down)
	{
		Navigate(Key == EKeys::Up ? -1 : 1);
		return FReply::Handled();
	}
	return SPressable::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SComboButton::Press()
{
	SetIsOpen(!bIsOpen);
	return FReply::Handled();
}

void SComboButton::Navigate(int32 Step)
{
	// Steps over empty options, which nobody sees.
	int32 Index = GetSelectedOption() + Step;
	while (Index >= 0 && Index < GetNumOptions() && !ChooseOption(Index, ESelectInfo::OnNavigation))
	{
		Index += Step;
	}
}
