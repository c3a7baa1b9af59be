// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <vector>

/**
 * Has a function of the C library fail, as file systems and full tables of descriptors make it, and notes what is
 * flushed. A program that links this has its own open, read, linkat, renameat2 and fsync.
 */
class FFileSystemFault
{
public:
	/** For "read": not to fail, but to give one byte at a time. */
	static constexpr int OneByte = -1;

	/** Until the end of the scope each call of the function, "linkat" say, fails with this errno. */
	FFileSystemFault(const char* InFunction, int Code);
	FFileSystemFault(const FFileSystemFault&) = delete;
	FFileSystemFault& operator=(const FFileSystemFault&) = delete;
	~FFileSystemFault();

	/** @return the files and folders that were flushed since the last call, in order. */
	static std::vector<std::string> TakeFlushed();

private:
	const std::string Function;
};
