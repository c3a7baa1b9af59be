// Copyright Corvane. MIT License.
#include "Widgets/Input/SButton.h"

void SButton::Construct(const FArguments& InArgs)
{
	OnClicked = InArgs._OnClicked;
	ChildSlot.Padding(4.0f, 2.0f)[InArgs._Content.Widget];
}

FReply SButton::Press()
{
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}
