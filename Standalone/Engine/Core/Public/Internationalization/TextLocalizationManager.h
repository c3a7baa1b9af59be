// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"

/** Knows what is displayed for each localised text, and swaps it while texts are on screen. */
class CORE_API FTextLocalizationManager
{
public:
	/** Stand-alone extra: the string to display for an identity, or unset to display the source. */
	typedef TFunction<TOptional<FString>(const FString& Namespace, const FString& Key, const FString& Source)> FTable;

	static FTextLocalizationManager& Get();

	/** Stand-alone extra: from now on every text shows what Table says. An unset table shows the sources. */
	void SetTable(FTable InTable);

	/** The string to display for an identity. */
	FString GetDisplayString(const FString& Namespace, const FString& Key, const FString& Source) const;

	/** Another number after each swap. */
	uint16 GetTextRevision() const { return TextRevision; }

private:
	FTable Table;
	uint16 TextRevision = 1;
};
