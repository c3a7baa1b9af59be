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
	/**
	 * Reads a regular file of at most MaxSize bytes. @return false with OutError as one line, `file: reason`.
	 * @param OutCode the system's number of what failed; 0 if the file was refused for what it is.
	 */
	static bool Read(
		const std::string& Path, size_t MaxSize, std::string& OutBytes, std::string& OutError, int* OutCode = nullptr);

	/**
	 * Writes Bytes to a temporary file beside Path, flushes it to the disk and renames it to Path.
	 * On failure the old file is intact, the temporary one is gone, and OutError is one line, `file: reason`.
	 * A symbolic link is followed, also to a file that is still to be made. Exceeding the process's file size limit is
	 * an error only while SIGXFSZ is ignored.
	 * @param BeforeRename asked once all bytes are on the disk. If it says no, that is a failure without an error line.
	 */
	static bool Replace(const std::string& Path, const std::string& Bytes, std::string& OutError,
		const std::function<bool()>& BeforeRename = nullptr);

	/**
	 * Removes temporary files that processes which were killed have left beside Path, and beside what a symbolic link
	 * there leads to: those that are older than an hour.
	 */
	static void RemoveLeftOver(const std::string& Path);

	/** The folder that the file is in, with a slash at the end. */
	static std::string GetFolder(const std::string& Path);

	/**
	 * Puts the folder's names on the disk, after one was added. A file system that can't do that has still added it: no
	 * error.
	 */
	static void FlushFolder(const std::string& Folder);
};
