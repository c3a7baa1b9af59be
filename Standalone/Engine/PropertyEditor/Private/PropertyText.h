// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FProperty;

/** Values as they stand in an edit box. Structures and arrays have no such text. */
class FPropertyText
{
public:
	/** @return false, with OutText as it is, for a property without text. */
	static bool Format(const FProperty* Property, const void* Value, FString& OutText);

	/**
	 * Calls Use with the value that the text stands for. Takes the whole text or nothing: a number in range and finite,
	 * "True" or "False" in any case, an existing object's path or "None".
	 * @return whether it was called.
	 */
	static bool Parse(const FProperty* Property, const FString& Text, TFunctionRef<void(const void*)> Use);
};
