// Copyright Corvane. MIT License.
#include "TemporaryFile.h"

#include "FileSystemFault.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>
#include <chrono>

namespace
{
	using FNames = std::vector<std::string>;

	/** A filled one in the folder. */
	class FFilled : public FTemporaryFile
	{
	public:
		explicit FFilled(const FTemporaryFolder& Folder) : FTemporaryFile(Folder.File(""))
		{
			EXPECT_TRUE(IsOpen() && Write("new ") && Write("text") && Finish(0640));
		}
	};

	void Age(const std::string& Path, std::chrono::minutes Minutes)
	{
		std::filesystem::last_write_time(Path, std::filesystem::file_time_type::clock::now() - Minutes);
	}
}

TEST(FTemporaryFile, IsGoneAtTheEndOfItsScope)
{
	const FTemporaryFolder Folder;
	{
		const FFilled File(Folder);
		ASSERT_EQ(Folder.List().size(), 1U);
		EXPECT_EQ(Folder.List()[0].rfind(".quillon-", 0), 0U);
		EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File(Folder.List()[0])), "new text");
	}
	EXPECT_EQ(Folder.List(), FNames());
}

TEST(FTemporaryFile, CanNotBeMadeInAMissingFolder)
{
	const FTemporaryFolder Folder;
	const FTemporaryFile File(Folder.File("none/"));
	EXPECT_FALSE(File.IsOpen());
	EXPECT_EQ(errno, ENOENT);
}

TEST(FTemporaryFile, ReplacesWithItsRightsAndBytes)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "old");
	{
		FFilled File(Folder);
		EXPECT_TRUE(File.Replace(Path));
	}
	EXPECT_EQ(Folder.List(), FNames{"a"});
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "new text");
	EXPECT_EQ(std::filesystem::status(Path).permissions(), std::filesystem::perms(0640));
}

TEST(FTemporaryFile, IsPlacedWhereNothingIs)
{
	const FTemporaryFolder Folder;
	{
		FFilled File(Folder);
		Folder.Write("a", "old");
		EXPECT_FALSE(File.Place(Folder.File("a")));
		EXPECT_EQ(errno, EEXIST);
		EXPECT_TRUE(File.Place(Folder.File("b")));
	}
	EXPECT_EQ(Folder.List(), (FNames{"a", "b"}));
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("a")), "old");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("b")), "new text");
}

TEST(FTemporaryFile, IsPlacedByAnotherNameWhereItCanNotBeRenamedSo)
{
	for (const int Code : {EINVAL, ENOSYS})
	{
		const FTemporaryFolder Folder;
		const FFileSystemFault Fault("renameat2", Code);
		{
			FFilled File(Folder);
			Folder.Write("a", "old");
			EXPECT_FALSE(File.Place(Folder.File("a")));
			EXPECT_EQ(errno, EEXIST);
			EXPECT_TRUE(File.Place(Folder.File("b")));
		}
		EXPECT_EQ(Folder.List(), (FNames{"a", "b"}));
		EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("a")), "old");
		EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("b")), "new text");
	}
}

TEST(FTemporaryFile, IsNotPlacedWhereThatFails)
{
	const FTemporaryFolder Folder;
	const FFileSystemFault Fault("renameat2", EACCES);
	{
		FFilled File(Folder);
		EXPECT_FALSE(File.Place(Folder.File("a")));
		EXPECT_EQ(errno, EACCES);
	}
	EXPECT_EQ(Folder.List(), FNames());
}

TEST(FTemporaryFile, IsRemovedWhenItWasLeftAnHourAgo)
{
	const FTemporaryFolder Folder;
	for (const char* Name : {".quillon-OldOne", ".quillon-Young1", ".quillon-", ".quillon-toolong", ".quillon.abcdef",
			 "quillon-abcdefg", "level.json"})
	{
		Folder.Write(Name, "x");
		Age(Folder.File(Name), std::chrono::minutes(std::string(Name) == ".quillon-Young1" ? 59 : 61));
	}
	std::filesystem::create_directory(Folder.File(".quillon-Folder"));
	Age(Folder.File(".quillon-Folder"), std::chrono::minutes(61));
	std::filesystem::create_symlink("level.json", Folder.File(".quillon-Link00"));
	FTemporaryFile::RemoveLeftOver(Folder.File(""));
	EXPECT_EQ(Folder.List(),
		(FNames{".quillon-", ".quillon-Folder", ".quillon-Link00", ".quillon-Young1", ".quillon-toolong",
			".quillon.abcdef", "level.json", "quillon-abcdefg"}));
	FTemporaryFile::RemoveLeftOver(Folder.File("none/"));
}
