// Copyright Corvane. MIT License.
#pragma once

#include <stdexcept>
#include <string>

/** Something in a header that the tool does not understand, with its line. Thrown, since nothing can be made of such a
 * header. */
class FSourceError : public std::runtime_error
{
public:
	FSourceError(int InLine, const std::string& Message) : std::runtime_error(Message), Line(InLine) {}

	int Line;
};
