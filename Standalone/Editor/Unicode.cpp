// Copyright Corvane. MIT License.
#include "Unicode.h"

#include <unicode/ustring.h>

#include <limits>

namespace
{
	// ICU counts in 32-bit integers, and UTF-8 needs up to three bytes for one unit of UTF-16.
	constexpr size_t MaxLength = std::numeric_limits<int32_t>::max() / 3;
}

bool FUnicode::ToUtf16(std::string_view Text, std::u16string& OutText)
{
	if (Text.size() > MaxLength)
	{
		return false;
	}
	OutText.resize(Text.size());
	int32_t Length = 0;
	UErrorCode Error = U_ZERO_ERROR;
	u_strFromUTF8(OutText.data(), static_cast<int32_t>(OutText.size()), &Length, Text.data(),
		static_cast<int32_t>(Text.size()), &Error);
	OutText.resize(U_SUCCESS(Error) ? static_cast<size_t>(Length) : 0);
	return U_SUCCESS(Error) != 0;
}

bool FUnicode::ToUtf8(std::u16string_view Text, std::string& OutText)
{
	if (Text.size() > MaxLength)
	{
		return false;
	}
	OutText.resize(Text.size() * 3);
	int32_t Length = 0;
	UErrorCode Error = U_ZERO_ERROR;
	u_strToUTF8(OutText.data(), static_cast<int32_t>(OutText.size()), &Length, Text.data(),
		static_cast<int32_t>(Text.size()), &Error);
	OutText.resize(U_SUCCESS(Error) ? static_cast<size_t>(Length) : 0);
	return U_SUCCESS(Error) != 0;
}
