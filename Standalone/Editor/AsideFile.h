// Copyright Corvane. MIT License.
#pragma once

#include <string>

/** Keeps a file that is about to be replaced. */
class FAsideFile
{
public:
	/**
	 * Gives the file at Path, or what a symbolic link there leads to, a second name: `StemNEnding` with the first N
	 * that nothing has. Where a file can't have two names, that one is a copy. The name is on the disk then.
	 * @return false, with errno, if neither can be made; nothing is left of it then.
	 */
	static bool Keep(
		const std::string& Path, const std::string& Stem, const std::string& Ending, std::string& OutAside);
};
