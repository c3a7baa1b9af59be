// Copyright Corvane. MIT License.
#pragma once

#include <string>

#include "Containers/UnrealString.h"

/** For expectations: exact where FString's own comparison ignores case, and printed readably on failure. */
inline std::string Utf8(const FString& String)
{
	return FTCHARToUTF8(String).Get();
}

inline FString FromUtf8(const std::string& Bytes)
{
	const FUTF8ToTCHAR Converted(Bytes.data(), static_cast<int32>(Bytes.size()));
	return FString(Converted.Length(), Converted.Get());
}
