// Copyright Corvane. MIT License.
#include "AsideFile.h"

#include "FileSystemFault.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>

/** A file to be kept, and what is beside it. */
class FAsideFileTest : public ::testing::Test
{
protected:
	bool Keep() { return FAsideFile::Keep(Path, Folder.File("a.old-"), ".txt", Aside); }
	bool HasTwoNames() const { return std::filesystem::hard_link_count(Path) == 2; }

	const FTemporaryFolder Folder;
	/** Longer than what is copied at once. */
	const std::string Bytes = std::string(100000, 'x') + "end";
	const std::string Path = Folder.Write("a.txt", Bytes);
	std::string Aside;
};

TEST_F(FAsideFileTest, HasASecondName)
{
	EXPECT_TRUE(Keep());
	EXPECT_EQ(Aside, Folder.File("a.old-1.txt"));
	EXPECT_TRUE(HasTwoNames());
}

TEST_F(FAsideFileTest, IsCopiedWhereAFileHasOneNameOnly)
{
	ASSERT_EQ(::chmod(Path.c_str(), 0604), 0);
	for (const int Code : {EPERM, EOPNOTSUPP, EXDEV, EMLINK})
	{
		const FFileSystemFault Fault("linkat", Code);
		EXPECT_TRUE(Keep()) << Code;
		EXPECT_FALSE(HasTwoNames());
		EXPECT_TRUE(FTemporaryFolder::ReadFile(Aside) == Bytes);
		EXPECT_EQ(std::filesystem::status(Aside).permissions(), std::filesystem::perms(0604));
	}
	EXPECT_EQ(
		Folder.List(), (std::vector<std::string>{"a.old-1.txt", "a.old-2.txt", "a.old-3.txt", "a.old-4.txt", "a.txt"}));
}

TEST_F(FAsideFileTest, IsOnTheDiskBeforeItHasItsName)
{
	const FFileSystemFault Fault("linkat", EPERM);
	FFileSystemFault::TakeFlushed();
	EXPECT_TRUE(Keep());
	const std::vector<std::string> Flushed = FFileSystemFault::TakeFlushed();
	ASSERT_EQ(Flushed.size(), 2U);
	EXPECT_EQ(Flushed[0].rfind(Folder.File(".quillon-"), 0), 0U) << Flushed[0];
	EXPECT_EQ(Flushed[1] + '/', Folder.File(""));
}

TEST_F(FAsideFileTest, LeavesNothingWhereItCanNotBeKept)
{
	const FFileSystemFault NoLinks("linkat", EPERM);
	for (const char* Function : {"open", "renameat2", "fsync"})
	{
		const FFileSystemFault Fault(Function, EIO);
		EXPECT_FALSE(Keep()) << Function;
		EXPECT_EQ(errno, EIO) << Function;
		EXPECT_EQ(Folder.List(), std::vector<std::string>{"a.txt"}) << Function;
	}
}

TEST_F(FAsideFileTest, IsNotCopiedForOtherFailures)
{
	for (const int Code : {ENOSPC, EACCES, EIO})
	{
		const FFileSystemFault Fault("linkat", Code);
		EXPECT_FALSE(Keep());
		EXPECT_EQ(errno, Code);
	}
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"a.txt"});
}
