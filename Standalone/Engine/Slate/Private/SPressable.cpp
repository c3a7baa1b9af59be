// Copyright Corvane. MIT License.
#include "Standalone/SPressable.h"

namespace
{
	bool IsAcceptKey(const FKeyEvent& KeyEvent)
	{
		return KeyEvent.GetKey() == EKeys::Enter || KeyEvent.GetKey() == EKeys::SpaceBar;
	}
}

bool SPressable::SupportsKeyboardFocus() const
{
	return true;
}

void SPressable::OnFocusLost(const FFocusEvent& /*InFocusEvent*/)
{
	bIsHeld = false;
}

FReply SPressable::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent))
	{
		return FReply::Unhandled();
	}
	bIsHeld = true;
	return FReply::Handled();
}

FReply SPressable::OnKeyUp(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	return IsAcceptKey(InKeyEvent) ? Release() : FReply::Unhandled();
}

FReply SPressable::OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	bIsHeld = true;
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SPressable::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	return MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton ? Release() : FReply::Unhandled();
}

void SPressable::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	bIsHeld = false;
}

FReply SPressable::Release()
{
	if (!bIsHeld)
	{
		return FReply::Unhandled();
	}
	bIsHeld = false;
	return Press();
}
