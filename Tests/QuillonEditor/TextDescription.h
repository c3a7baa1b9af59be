// Copyright Corvane. MIT License.
#pragma once

#include <string>

#include "Internationalization/Text.h"

/** "Namespace,Key,Source" of a text, letter for letter; "-" for what it has not. */
inline std::string DescribeText(const FText& Text)
{
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	return std::string(Namespace.IsSet() ? TCHAR_TO_UTF8(Namespace.GetValue()) : "-") + "," +
		(Key.IsSet() ? TCHAR_TO_UTF8(Key.GetValue()) : "-") + "," +
		TCHAR_TO_UTF8(*FTextInspector::GetSourceString(Text));
}
