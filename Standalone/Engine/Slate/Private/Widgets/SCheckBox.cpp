// Copyright Corvane. MIT License.
#include "Widgets/Input/SCheckBox.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

void SCheckBox::Construct(const FArguments& InArgs)
{
	CheckedState = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	const float MarkSize = 16.0f;
	// clang-format off
	ChildSlot
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center)
		[
			SNew(SBox).WidthOverride(FOptionalSize(MarkSize)).HeightOverride(FOptionalSize(MarkSize))
		]
		+ SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)[InArgs._Content.Widget]
	];
	// clang-format on
}

FReply SCheckBox::Press()
{
	const ECheckBoxState NewState = IsChecked() ? ECheckBoxState::Unchecked : ECheckBoxState::Checked;
	if (!CheckedState.IsBound())
	{
		CheckedState = NewState;
	}
	OnCheckStateChanged.ExecuteIfBound(NewState);
	return FReply::Handled();
}
