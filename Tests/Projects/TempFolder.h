// Copyright Corvane. MIT License.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/** A folder of one test's own, gone afterwards. */
class FTempFolder
{
public:
	FTempFolder()
	{
		std::string Template = (std::filesystem::temp_directory_path() / "PluginsXXXXXX").string();
		Path = ::mkdtemp(Template.data());
	}
	~FTempFolder() { std::filesystem::remove_all(Path); }
	FTempFolder(const FTempFolder&) = delete;
	FTempFolder& operator=(const FTempFolder&) = delete;

	/** Writes a file below the folder and returns its full path. */
	std::string Write(const std::string& Name, const std::string& Content) const
	{
		const std::filesystem::path File = Path / Name;
		std::filesystem::create_directories(File.parent_path());
		std::ofstream(File, std::ios::binary) << Content;
		return File.string();
	}

	std::filesystem::path Path;
};
