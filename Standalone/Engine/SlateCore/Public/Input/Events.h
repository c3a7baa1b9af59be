// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Set.h"
#include "InputCoreTypes.h"
#include "Math/Vector2D.h"

/** Why the keyboard focus went to or from a widget. */
enum class EFocusCause : uint8
{
	Mouse,
	/** The tab key. */
	Navigation,
	SetDirectly,
	/** Code took it from everything. */
	Cleared,
	/** The widget that had it was hidden, disabled or closed. */
	OtherWidgetLostFocus,
};

/** Tells a widget that it received or lost the keyboard focus. */
struct FFocusEvent
{
	FFocusEvent(const EFocusCause InCause, uint32 /*InUserIndex*/) : Cause(InCause) {}

	EFocusCause GetCause() const { return Cause; }

private:
	EFocusCause Cause;
};

/** Tells a widget that asked for the mouse that the release will not come to it. */
struct FCaptureLostEvent
{
	int32 UserIndex;
	int32 PointerIndex;
};

/** Which modifier keys are down, as far as widgets ask. */
class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(const bool bInIsLeftShiftDown, const bool bInIsRightShiftDown, const bool bInIsLeftControlDown,
		const bool bInIsRightControlDown, const bool /*bInIsLeftAltDown*/, const bool /*bInIsRightAltDown*/,
		const bool /*bInIsLeftCommandDown*/, const bool /*bInIsRightCommandDown*/, const bool /*bInAreCapsLocked*/)
		: bIsShiftDown(bInIsLeftShiftDown || bInIsRightShiftDown),
		  bIsControlDown(bInIsLeftControlDown || bInIsRightControlDown)
	{}
	bool IsShiftDown() const { return bIsShiftDown; }
	bool IsControlDown() const { return bIsControlDown; }

private:
	bool bIsShiftDown = false;
	bool bIsControlDown = false;
};

/** What all input events have in common. */
struct FInputEvent
{
	FInputEvent(const FModifierKeysState& InModifierKeys, const uint32 /*InUserIndex*/, const bool /*bInIsRepeat*/)
		: ModifierKeys(InModifierKeys)
	{}
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }

private:
	FModifierKeysState ModifierKeys;
};

/** A key went down or up. */
struct FKeyEvent : public FInputEvent
{
	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex,
		const bool bInIsRepeat, const uint32 /*InCharacterCode*/, const uint32 /*InKeyCode*/)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat), Key(InKey)
	{}
	FKey GetKey() const { return Key; }

private:
	FKey Key;
};

/** A UTF-16 unit was typed; a character beyond the basic plane comes as two events. */
struct FCharacterEvent : public FInputEvent
{
	FCharacterEvent(const TCHAR InCharacter, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex,
		const bool bInIsRepeat)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat), Character(InCharacter)
	{}
	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};

/** A mouse button went down or up. Where it did is said by the widget path that comes with the event. */
struct FPointerEvent : public FInputEvent
{
	FPointerEvent(uint32 /*InPointerIndex*/, const FVector2D& /*InScreenSpacePosition*/,
		const FVector2D& /*InLastScreenSpacePosition*/, const TSet<FKey>& /*InPressedButtons*/, FKey InEffectingButton,
		float /*InWheelDelta*/, const FModifierKeysState& InModifierKeys)
		: FInputEvent(InModifierKeys, 0, false), EffectingButton(InEffectingButton)
	{}
	FKey GetEffectingButton() const { return EffectingButton; }

private:
	FKey EffectingButton;
};
