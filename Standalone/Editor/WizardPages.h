// Copyright Corvane. MIT License.
#pragma once

#include <optional>
#include <string>

#include "CoreMinimal.h"

class SEditableTextBox;
class SWidget;

/** The open wizard as a user sees it: a box for the name, a line under it, a button, and what the page says afterwards.
 */
class FWizardPages
{
public:
	/** Chooses the wizard from the toolbar button's menu. @return null, and one line that says why, if none opens. */
	static TSharedPtr<SWidget> Open(std::string& OutError);

	explicit FWizardPages(const TSharedRef<SWidget>& InContent) : Content(InContent) {}

	/**
	 * Types Name over what stands in the box; a very long name, and one with characters that no key makes, is pasted.
	 * @return false if the box does not show exactly Name afterwards.
	 */
	bool EnterName(const FString& Name) const;

	/** @return the line that is shown under the box, if there is one. */
	std::optional<std::string> GetWarning() const;

	/** Clicks the page's button. @return false if none is shown. */
	bool PressButton() const;

	/** @return what the page says: the message of the last page, or the warning while the first one stays. */
	std::string GetMessage() const;

private:
	TSharedPtr<SEditableTextBox> FindBox() const;

	TSharedRef<SWidget> Content;
};
