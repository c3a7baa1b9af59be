// Copyright Corvane. MIT License.
#include "Widgets/Input/SButton.h"

namespace
{
	bool IsAcceptKey(const FKeyEvent& KeyEvent)
	{
		return KeyEvent.GetKey() == EKeys::Enter || KeyEvent.GetKey() == EKeys::SpaceBar;
	}
}

void SButton::Construct(const FArguments& InArgs)
{
	OnClicked = InArgs._OnClicked;
	ChildSlot.Padding(4.0f, 2.0f)[InArgs._Content.Widget];
}

bool SButton::SupportsKeyboardFocus() const
{
	return true;
}

void SButton::OnFocusLost(const FFocusEvent& /*InFocusEvent*/)
{
	bIsPressed = false;
}

FReply SButton::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent))
	{
		return FReply::Unhandled();
	}
	bIsPressed = true;
	return FReply::Handled();
}

FReply SButton::OnKeyUp(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	return IsAcceptKey(InKeyEvent) ? Release() : FReply::Unhandled();
}

FReply SButton::OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	bIsPressed = true;
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SButton::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	return MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton ? Release() : FReply::Unhandled();
}

void SButton::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	bIsPressed = false;
}

FReply SButton::Release()
{
	if (!bIsPressed)
	{
		return FReply::Unhandled();
	}
	bIsPressed = false;
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}
