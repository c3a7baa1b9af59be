// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** Whole files at once. */
struct CORE_API FFileHelper
{
	/**
	 * Reads a UTF-8 file; a byte-order mark is left out, ill-formed bytes become U+FFFD.
	 * @return false, with Result unchanged, if the file cannot be read.
	 */
	static bool LoadFileToString(FString& Result, const TCHAR* Filename);
};
