// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/SCompoundWidget.h"

/**
 * What buttons and check boxes have in common: they are pressed when the left mouse button goes down and up on them, or
 * Enter or the space bar does while they have the focus. Going down elsewhere, or the release elsewhere, does nothing.
 */
class SLATE_API SPressable : public SCompoundWidget
{
public:
	virtual bool SupportsKeyboardFocus() const override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

protected:
	/** It was pressed and let go. */
	virtual FReply Press() = 0;

private:
	/** Lets go; presses if it was held down. */
	FReply Release();

	bool bIsHeld = false;
};
