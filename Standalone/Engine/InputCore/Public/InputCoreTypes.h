// Copyright Corvane. MIT License.
#pragma once

#include "UObject/NameTypes.h"

/** A key of the keyboard or a button of the mouse, known by its name. */
struct INPUTCORE_API FKey
{
	/** No key at all. */
	FKey() = default;
	FKey(const FName InName) : KeyName(InName) {}
	FKey(const ANSICHAR* InName) : KeyName(InName) {}

	bool operator==(const FKey& Other) const { return KeyName == Other.KeyName; }
	bool operator!=(const FKey& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	FName KeyName;
};

/** The keys that the widgets react to. */
struct INPUTCORE_API EKeys
{
	static const FKey LeftMouseButton;
	static const FKey RightMouseButton;

	static const FKey BackSpace;
	static const FKey Tab;
	static const FKey Enter;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey Up;
	static const FKey Down;

	static const FKey A;
	static const FKey V;
};
