// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

#include <initializer_list>

/** Takes paths apart and puts them together. Both kinds of slashes part folders. */
class CORE_API FPaths
{
public:
	/** Joins the parts with one slash each; empty parts leave no slash. */
	template <typename... PathTypes>
	static FString Combine(const PathTypes&... InPaths)
	{
		FString Result;
		for (const FString& Path : std::initializer_list<FString>{FString(InPaths)...})
		{
			Result = Path.IsEmpty() ? Result : Result / Path;
		}
		return Result;
	}

	/** The part before the last slash, or nothing. */
	static FString GetPath(const FString& InPath);

	/** The part behind the last slash. */
	static FString GetCleanFilename(const FString& InPath);

	/** The file's name without its last extension; with bRemovePath false the folders stay. */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);
};
