// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"

class SWidget;

/**
 * What a user's hands do, as events for the application: the same path that a window takes, so that focus moves and
 * boxes commit before a click arrives.
 */
class FUserInput
{
public:
	/** Gives the widget the keyboard focus. @return false if it can't have it. */
	static bool Focus(const TSharedRef<SWidget>& Widget);

	/** Types Text into whatever has the focus, one character after the other. */
	static void Type(const FString& Text);

	/** Presses and releases a key, for whatever has the focus. */
	static void Press(const FKey& Key, const FModifierKeysState& Modifiers = FModifierKeysState());

	/** The control key, held down. */
	static FModifierKeysState WithControl();

	/** Copies Text and pastes it with Ctrl+V into whatever has the focus. */
	static void Paste(const FString& Text);

	/** Presses and releases the left mouse button on the widget. @return false, with nothing done, if it is not shown.
	 */
	static bool Click(const TSharedRef<SWidget>& Widget);
};
