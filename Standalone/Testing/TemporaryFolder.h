// Copyright Corvane. MIT License.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/** An empty folder for one test, removed with all its content at the end of the scope. */
class FTemporaryFolder
{
public:
	FTemporaryFolder();
	FTemporaryFolder(const FTemporaryFolder&) = delete;
	FTemporaryFolder& operator=(const FTemporaryFolder&) = delete;
	~FTemporaryFolder();

	/** @return the path of a file in the folder, which need not exist. */
	std::string File(const std::string& Name) const;

	/** Writes a file into the folder and returns its path. */
	std::string Write(const std::string& Name, const std::string& Bytes) const;

	/** @return the names of what stands in the folder, sorted. */
	std::vector<std::string> List() const;

	/** @return the bytes of any file; a missing one fails the test. */
	static std::string ReadFile(const std::string& Path);

private:
	std::filesystem::path Path;
};
