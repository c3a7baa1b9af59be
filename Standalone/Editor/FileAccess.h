// Copyright Corvane. MIT License.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

/**
 * Whole files in one piece. Paths are bytes as the system gives them.
 * Reading refuses by size before anything is read; writing replaces a file completely or leaves it as it was.
 */
class FFileAccess
{
public:
	/** Reads a regular file of at most MaxSize bytes. @return false with OutError as one line, `file: reason`. */
	static bool Read(const std::string& Path, size_t MaxSize, std::string& OutBytes, std::string& OutError);

	/**
	 * Writes Bytes to a temporary file beside Path, flushes it to the disk and renames it to Path.
	 * On failure the old file is intact, the temporary one is gone, and OutError is one line, `file: reason`.
	 * A symbolic link is followed. Exceeding the process's file size limit is an error only while SIGXFSZ is ignored.
	 * @param BeforeRename asked once all bytes are on the disk. If it says no, that is a failure without an error line.
	 */
	static bool Replace(const std::string& Path, const std::string& Bytes, std::string& OutError,
		const std::function<bool()>& BeforeRename = nullptr);
};
