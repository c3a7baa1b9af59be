// Copyright Corvane. MIT License.
#pragma once

#include <optional>
#include <string>
#include <vector>

/** One run of the built program from its start to its end, as a shell sees it. */
class FChildProcess
{
public:
	struct FOptions
	{
		/** The size in bytes beyond which the program can't write a file. */
		std::optional<unsigned long> FileSizeLimit;
		/** Where standard output goes instead of being kept. */
		std::optional<std::string> OutputFile;
		/** The working directory. */
		std::optional<std::string> Directory;
	};

	/** Runs the editor with these arguments and waits for its end. */
	static FChildProcess Run(const std::vector<std::string>& Arguments, const FOptions& Options);
	static FChildProcess Run(const std::vector<std::string>& Arguments);

	/** The exit status, or minus the signal that ended the program. */
	int Status = -1;
	std::string Output;
	std::string Errors;
};
