// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class SButton;
class SEditableTextBox;
class STextBlock;
class SWidget;

/**
 * Finds widgets as a user does: by what is shown, from the top down, whatever the tree around it. A widget is shown if
 * it and all widgets above it are visible. Each call looks anew, as visibilities follow the state of what they are
 * bound to.
 */
class FWidgetFinder
{
public:
	/** A widget that is shown, and the button that it is the caption or a part of, if any. */
	struct FShown
	{
		TSharedRef<SWidget> Widget;
		TSharedPtr<SButton> Button;
		/** Whether it and all above it are enabled. */
		bool bEnabled;
	};

	explicit FWidgetFinder(const TSharedRef<SWidget>& InRoot) : Root(InRoot) {}

	/** All shown widgets, each before its children. */
	TArray<FShown> GetShown() const;

	TArray<TSharedRef<SEditableTextBox>> GetEditBoxes() const;

	/** Texts that stand by themselves, captions of buttons left out. */
	TArray<TSharedRef<STextBlock>> GetTexts() const;

	/** Enabled buttons. */
	TArray<TSharedRef<SButton>> GetButtons() const;

	/** @return the enabled button whose caption is exactly this, or null. */
	TSharedPtr<SButton> FindButton(const FString& Caption) const;

	/** @return the first text that stands by itself below (in reading order: after) this widget, or null. */
	TSharedPtr<STextBlock> FindTextAfter(const TSharedRef<SWidget>& Widget) const;

private:
	TSharedRef<SWidget> Root;
};
