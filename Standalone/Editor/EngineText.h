// Copyright Corvane. MIT License.
#pragma once

#include <string>

#include "CoreMinimal.h"

/** Between the UTF-8 of files and terminals and the engine's strings. */
class FEngineText
{
public:
	/** Text must be well-formed UTF-8, as FStrictJson and FUnicode grant it. */
	static FString FromUtf8(const std::string& Text);

	/** @return false if Text holds a surrogate without its partner, which no file can carry. */
	static bool ToUtf8(const FString& Text, std::string& OutText);

	/** For messages: a surrogate without its partner shows as U+FFFD. */
	static std::string ForDisplay(const FString& Text);
	static std::string ForDisplay(const FName& Name);
};
