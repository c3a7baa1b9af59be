// Copyright Corvane. MIT License.
#pragma once

#include "Framework/Commands/UIAction.h"
#include "Framework/SlateDelegates.h"

/** How a menu's content is made. */
struct FNewToolMenuChoice
{
	FNewToolMenuChoice() = default;
	FNewToolMenuChoice(const FOnGetContent& InOnGetContent) : OnGetContent(InOnGetContent) {}

	/** Makes the content anew each time the menu opens. */
	FOnGetContent OnGetContent;
};

/** What a menu entry does. */
struct FToolUIActionChoice
{
	FToolUIActionChoice() = default;
	FToolUIActionChoice(const FUIAction& InAction) : Action(InAction) {}

	/** Null if none was given. */
	const FUIAction* GetUIAction() const { return Action.IsSet() ? &Action.GetValue() : nullptr; }

private:
	TOptional<FUIAction> Action;
};
