// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <string_view>

/**
 * Strict conversions between the UTF-8 of files and command lines and the engine's UTF-16.
 * Unlike the engine's own conversions these refuse what is ill-formed instead of replacing it, so that no text is
 * changed silently on its way through a file.
 */
class FUnicode
{
public:
	/** @return false if Text is not well-formed UTF-8 (OutText is then unspecified). */
	static bool ToUtf16(std::string_view Text, std::u16string& OutText);

	/** @return false if Text holds a surrogate without its partner (OutText is then unspecified). */
	static bool ToUtf8(std::u16string_view Text, std::string& OutText);
};
