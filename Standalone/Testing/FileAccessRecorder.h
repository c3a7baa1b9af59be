// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <vector>

/**
 * Notes which files this program and its libraries open, by whatever call of the C library. The loader's own opening of
 * shared libraries does not come by. A program that links this has its own open and fopen.
 */
class FFileAccessRecorder
{
public:
	/** From now on; what was noted before is forgotten. */
	static void Start();
	/** @return the paths as they were given, in order. */
	static std::vector<std::string> Stop();
};
