// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** Takes paths apart. Both kinds of slashes part folders. */
class CORE_API FPaths
{
public:
	/** The part before the last slash, or nothing. */
	static FString GetPath(const FString& InPath);

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);
};
