// Copyright Corvane. MIT License.
#pragma once

#include <string>

/** What the program says. */
class FStandardOutput
{
public:
	/** Writes Text to standard output. @return false, after a line on standard error, if it could not be written. */
	static bool Write(const std::string& Text);

	/** Writes one line to standard error. */
	static void WriteError(const std::string& Line);
};
