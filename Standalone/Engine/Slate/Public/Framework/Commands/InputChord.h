// Copyright Corvane. MIT License.
#pragma once

#include "InputCoreTypes.h"

/** The keys that call a command; modifier keys are not known here. */
struct FInputChord
{
	/** No key. */
	FInputChord() = default;
	FInputChord(const FKey InKey) : Key(InKey) {}

	/** Whether there is a key to press. */
	bool IsValidChord() const { return Key != FKey(); }

	FKey Key;
};
