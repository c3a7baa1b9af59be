// Copyright Corvane. MIT License.
#include "ErrorText.h"

#include <array>
#include <cstdio>

namespace
{
	// Long enough to recognise a value by, short enough for one line of a terminal.
	constexpr size_t QuotedLength = 60;

	bool IsContinuation(char Byte)
	{
		return (static_cast<unsigned char>(Byte) & 0xC0U) == 0x80U;
	}

	std::string Shorten(std::string_view Text)
	{
		if (Text.size() <= QuotedLength)
		{
			return std::string(Text);
		}
		size_t End = QuotedLength;
		while (End > 0 && IsContinuation(Text[End]))
		{
			--End;
		}
		return std::string(Text.substr(0, End)) + "…";
	}
}

std::string FErrorText::OneLine(std::string_view Text)
{
	std::string Line;
	Line.reserve(Text.size());
	for (const char Byte : Text)
	{
		const auto Code = static_cast<unsigned char>(Byte);
		if (Code >= 0x20U && Code != 0x7FU)
		{
			Line += Byte;
			continue;
		}
		std::array<char, 8> Escape{};
		std::snprintf(Escape.data(), Escape.size(), "\\u%04X", Code);
		Line += Escape.data();
	}
	return Line;
}

std::string FErrorText::Quote(std::string_view Text)
{
	return '"' + OneLine(Shorten(Text)) + '"';
}

std::string FErrorText::ForFile(std::string_view File, std::string_view Reason)
{
	return OneLine(File) + ": " + OneLine(Reason);
}

std::string FErrorText::AtPlace(const std::string& Place, const std::string& Reason)
{
	return (Place.empty() ? std::string("top level") : Place) + ": " + Reason;
}
