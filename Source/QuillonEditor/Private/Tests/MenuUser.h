// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Misc/CoreDelegates.h"
#include "Misc/MessageDialog.h"
#include "Styling/SlateTypes.h"

#include "WidgetUser.h"

struct FToolMenuEntry;

/**
 * A user who opens the plugin's menu from the toolbar, reads it and chooses. The menu is shown in a tab of this
 * object's own, so that it can be clicked like any widget. Message boxes and addresses are caught for as long as this
 * object lives, and nothing leaves the editor. A menu that can't be opened is empty.
 */
class FMenuUser
{
public:
	/** Opens the menu. */
	FMenuUser();
	~FMenuUser();

	/** The toolbar's button, or null when there is none. */
	static FToolMenuEntry* FindButton();

	/** Makes the menu anew, as each click on the toolbar button does. */
	void Reopen();

	TSharedRef<SWidget> GetMenu() const { return Menu.ToSharedRef(); }

	/** What is written in the menu, top down: headings and labels. */
	TArray<FString> GetTexts() const;
	/** The namespace, key and source of that text. */
	FString DescribeTextOf(const TCHAR* Shown) const;
	/** The states of the entries that can be ticked, top down. */
	TArray<ECheckBoxState> GetChecks() const;

	/** Clicks the entry; nothing for a label that is not there. */
	void Choose(const TCHAR* Label);

	/** The messages of the boxes that came up, in order, and the kind of the last one. */
	TArray<FText> Messages;
	EAppMsgType::Type LastMessageType = EAppMsgType::YesNo;
	/** The addresses that the system's browser would have got. */
	TArray<FString> Addresses;

private:
	typedef decltype(FCoreDelegates::ModalErrorMessage) FMessageBoxDelegate;
	typedef decltype(FCoreDelegates::ShouldLaunchUrl) FAddressDelegate;

	TSharedPtr<SWidget> Menu;
	/** What the editor had bound before; it gets that back. */
	FMessageBoxDelegate FormerMessageBox;
	FAddressDelegate FormerShouldLaunch;
};
