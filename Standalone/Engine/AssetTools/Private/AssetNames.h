// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/** The rules of package names. A longer name than a name may be is never made into one, which would be fatal. */
namespace AssetNames
{
	/** The text with every character that no package name may have replaced by "_"; slashes stay. */
	FString Sanitise(const FString& PackageName);

	/** The part after the last slash. */
	FString LastPart(const FString& PackageName);

	/** Whether a package could have that name: a path from the root, without empty parts, of at most 1,023 units. */
	bool IsPossible(const FString& PackageName);

	/** Whether there is an asset of that path. */
	bool IsTaken(const FString& PackageName);

	/** The text without the digits at its end, and their value; 0 if there are none, or more than nine. */
	FString SplitNumber(const FString& Text, int32& OutNumber);
}
