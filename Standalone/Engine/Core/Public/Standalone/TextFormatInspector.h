// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Internationalization/Text.h"

/**
 * Stand-alone extra: reads back what a formatted text was made from, so that a dump can tell a translatable pattern
 * from the values within it.
 */
class CORE_API FTextFormatInspector
{
public:
	/** Null if the text was not formatted. */
	static const FText* GetPattern(const FText& Text);

	/** Null if the text was not formatted. */
	static const TArray<FText>* GetArguments(const FText& Text);
};
