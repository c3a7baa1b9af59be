// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <string_view>

/**
 * The wording of errors about files: always one line, `file: place: reason`, whatever stands in the file or in its
 * name.
 */
class FErrorText
{
public:
	/** @return Text in double quotes, on one line and shortened, to be shown inside a reason. */
	static std::string Quote(std::string_view Text);

	/** @return Text with control characters written as escapes, so that it stays one line. */
	static std::string OneLine(std::string_view Text);

	/** @return `file: reason`, on one line. */
	static std::string ForFile(std::string_view File, std::string_view Reason);

	/** @return `place: reason`; an empty place (the JSON pointer of the whole document) reads "top level". */
	static std::string AtPlace(const std::string& Place, const std::string& Reason);
};
