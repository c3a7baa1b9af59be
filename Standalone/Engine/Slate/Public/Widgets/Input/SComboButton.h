// Copyright Corvane. MIT License.
#pragma once

#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "Standalone/SPressable.h"
#include "Types/SlateEnums.h"

/**
 * A button with an arrow that opens a list of options, as far as it has to know nothing of what an option is. Pressing
 * it opens and closes the list. While it has the focus, the arrow keys up and down choose the option before or after
 * the selected one, whether the list is open or not. The loss of the focus closes the list.
 *
 * The opened list is no widget: whoever shows it asks for the options, each time anew. The real engine's button has no
 * options, and opens a menu.
 */
class SLATE_API SComboButton : public SPressable
{
public:
	/** As many as there are at this moment. */
	virtual int32 GetNumOptions() const = 0;
	/** A new widget that shows the option; the null widget for an index without one, or if nobody makes any. */
	virtual TSharedRef<SWidget> GenerateOption(int32 Index) = 0;
	/**
	 * As if the user had chosen the option; unless he did by navigation, the list closes.
	 * @return false, with nothing done, for an index without an option.
	 */
	virtual bool ChooseOption(int32 Index, ESelectInfo::Type SelectInfo) = 0;
	/** The index of the selected option, or INDEX_NONE if none is or it is no longer offered. */
	virtual int32 GetSelectedOption() const = 0;

	bool IsOpen() const { return bIsOpen; }
	/** Opening announces itself first, so that the options can be brought up to date. */
	void SetIsOpen(bool bInIsOpen);

	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

protected:
	/** Puts the button together, content and arrow. The delegate is told that the list is about to open. */
	void ConstructButton(const TSharedRef<SWidget>& Content, const TAttribute<FMargin>& ContentPadding,
		const FSimpleDelegate& InOnOpening);
	virtual FReply Press() override;

private:
	/** Chooses the next option in that direction, if there is one. */
	void Navigate(int32 Step);

	FSimpleDelegate OnOpening;
	bool bIsOpen = false;
};
