// Copyright Corvane. MIT License.
#include "StandardOutput.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

bool FStandardOutput::Write(const std::string& Text)
{
	// Flushed here, as a full disk shows only then.
	if (std::fwrite(Text.data(), 1, Text.size(), stdout) == Text.size() && std::fflush(stdout) == 0)
	{
		return true;
	}
	WriteError(std::string("standard output: ") + std::strerror(errno));
	return false;
}

void FStandardOutput::WriteError(const std::string& Line)
{
	const std::string Text = Line + '\n';
	std::fwrite(Text.data(), 1, Text.size(), stderr);
}
