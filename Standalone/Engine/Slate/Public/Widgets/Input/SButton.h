// Copyright Corvane. MIT License.
#pragma once

#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/**
 * A button around any content. It clicks when the left mouse button goes down and up on it, or Enter or the space bar
 * does while it has the focus. Going down elsewhere, or the release elsewhere, is no click.
 */
class SLATE_API SButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SButton) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual bool SupportsKeyboardFocus() const override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

private:
	/** Lets go; clicks if it was held down. */
	FReply Release();

	FOnClicked OnClicked;
	bool bIsPressed = false;
};
