// Copyright Corvane. MIT License.
#pragma once

#include "Descriptor.h"

#include <sys/types.h>

#include <string>

/**
 * A file that is filled under a name of its own, in the folder where it is to take its place. It is gone at the end of
 * its scope, unless it has taken that. What fails leaves its reason in errno.
 */
class FTemporaryFile
{
public:
	/** Makes an empty one. Folder ends in a slash. */
	explicit FTemporaryFile(const std::string& Folder);
	FTemporaryFile(const FTemporaryFile&) = delete;
	FTemporaryFile& operator=(const FTemporaryFile&) = delete;
	~FTemporaryFile();

	/** Whether it could be made. */
	bool IsOpen() const { return File.IsOpen(); }

	/** Appends the bytes. */
	bool Write(const std::string& Bytes) const { return File.WriteAll(Bytes); }

	/** Sets its access rights and waits until all of it is on the disk. Nothing can be written any more. */
	bool Finish(mode_t Mode);

	/** Takes Path, instead of what is there. */
	bool Replace(const std::string& Path);

	/** Takes Path only if nothing is there, else errno is EEXIST. */
	bool Place(const std::string& Path);

	/**
	 * Removes those in Folder that have not been written to for an hour: processes that were killed have left them. A
	 * younger one may be another process's, which is at work. What can't be removed stays.
	 */
	static void RemoveLeftOver(const std::string& Folder);

private:
	std::string Name;
	FDescriptor File;
};
