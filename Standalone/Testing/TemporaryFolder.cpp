// Copyright Corvane. MIT License.
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

FTemporaryFolder::FTemporaryFolder()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "quillon-test-XXXXXX").string();
	const char* const Made = ::mkdtemp(Pattern.data());
	EXPECT_NE(Made, nullptr);
	Path = Pattern;
}

FTemporaryFolder::~FTemporaryFolder()
{
	std::error_code Ignored;
	std::filesystem::remove_all(Path, Ignored);
}

std::string FTemporaryFolder::File(const std::string& Name) const
{
	return (Path / Name).string();
}

std::string FTemporaryFolder::Write(const std::string& Name, const std::string& Bytes) const
{
	std::ofstream Out(Path / Name, std::ios::binary);
	Out << Bytes;
	EXPECT_TRUE(Out.flush().good());
	return File(Name);
}

std::vector<std::string> FTemporaryFolder::List() const
{
	std::vector<std::string> Names;
	for (const auto& Entry : std::filesystem::directory_iterator(Path))
	{
		Names.push_back(Entry.path().filename().string());
	}
	std::sort(Names.begin(), Names.end());
	return Names;
}

std::string FTemporaryFolder::ReadFile(const std::string& Path)
{
	std::ifstream In(Path, std::ios::binary);
	EXPECT_TRUE(In.good()) << Path;
	return {std::istreambuf_iterator<char>(In), std::istreambuf_iterator<char>()};
}
