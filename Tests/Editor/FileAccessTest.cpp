// Copyright Corvane. MIT License.
#include "FileAccess.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

namespace
{
	constexpr size_t MaxSize = 1024;

	std::string ReadErrorOf(const std::string& Path)
	{
		std::string Bytes;
		std::string Error;
		EXPECT_FALSE(FFileAccess::Read(Path, MaxSize, Bytes, Error));
		return Error;
	}

	std::string ReplaceErrorOf(const std::string& Path)
	{
		std::string Error;
		EXPECT_FALSE(FFileAccess::Replace(Path, "new", Error));
		return Error;
	}

	/** @return the exit status of a child process that ran Body: 0 if it returned true. */
	template <typename BodyType>
	int RunInChild(BodyType Body)
	{
		const pid_t Child = ::fork();
		if (Child == 0)
		{
			::_exit(Body() ? 0 : 1);
		}
		int Status = -1;
		EXPECT_EQ(::waitpid(Child, &Status, 0), Child);
		return Status;
	}

	/** Replaces a file while the process may write only few bytes a file. */
	bool ReplaceFailsUnderSizeLimit(const std::string& Path)
	{
		std::signal(SIGXFSZ, SIG_IGN);
		rlimit Limit{};
		Limit.rlim_cur = 10;
		Limit.rlim_max = 10;
		std::string Error;
		return ::setrlimit(RLIMIT_FSIZE, &Limit) == 0 && !FFileAccess::Replace(Path, std::string(100, 'x'), Error) &&
			Error == Path + ": File too large";
	}

	/** Replaces a file without the superuser's rights, which no file's rights bind. */
	bool ReplaceFailsAsNobody(const std::string& Path)
	{
		constexpr uid_t Nobody = 65534;
		std::string Error;
		return (::geteuid() != 0 || ::setuid(Nobody) == 0) && !FFileAccess::Replace(Path, "new", Error) &&
			Error == Path + ": Permission denied";
	}
}

TEST(FFileAccess, ReadsAFileOfTheLargestSize)
{
	const FTemporaryFolder Folder;
	std::string Bytes;
	std::string Error;
	ASSERT_TRUE(FFileAccess::Read(Folder.Write("a", std::string(MaxSize, 'x')), MaxSize, Bytes, Error)) << Error;
	EXPECT_EQ(Bytes, std::string(MaxSize, 'x'));
}

TEST(FFileAccess, RefusesALargerFile)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", std::string(MaxSize + 1, 'x'));
	EXPECT_EQ(ReadErrorOf(Path), Path + ": larger than 0 MiB");
}

TEST(FFileAccess, RefusesToReadAMissingFile)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ(ReadErrorOf(Folder.File("a")), Folder.File("a") + ": No such file or directory");
}

TEST(FFileAccess, RefusesToReadAFolder)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ(ReadErrorOf(Folder.File("")), Folder.File("") + ": Is a directory");
}

TEST(FFileAccess, RefusesToReadADevice)
{
	EXPECT_EQ(ReadErrorOf("/dev/zero"), "/dev/zero: not a regular file");
}

TEST(FFileAccess, RefusesToReadANamedPipeWithoutWaiting)
{
	const FTemporaryFolder Folder;
	ASSERT_EQ(::mkfifo(Folder.File("pipe").c_str(), 0600), 0);
	EXPECT_EQ(ReadErrorOf(Folder.File("pipe")), Folder.File("pipe") + ": not a regular file");
}

TEST(FFileAccess, WritesANewFileWithTheUsersUsualRights)
{
	const FTemporaryFolder Folder;
	std::string Error;
	ASSERT_TRUE(FFileAccess::Replace(Folder.File("a"), "text", Error)) << Error;
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("a")), "text");
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"a"});
	struct stat Info
	{};
	ASSERT_EQ(::stat(Folder.File("a").c_str(), &Info), 0);
	const mode_t Mask = ::umask(0);
	::umask(Mask);
	EXPECT_EQ(Info.st_mode & 0777U, 0666U & ~Mask);
}

TEST(FFileAccess, ReplacesAFileAndKeepsItsRights)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "a longer old text");
	ASSERT_EQ(::chmod(Path.c_str(), 0640), 0);
	std::string Error;
	ASSERT_TRUE(FFileAccess::Replace(Path, "new", Error)) << Error;
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "new");
	struct stat Info
	{};
	ASSERT_EQ(::stat(Path.c_str(), &Info), 0);
	EXPECT_EQ(Info.st_mode & 0777U, 0640U);
}

TEST(FFileAccess, FollowsASymbolicLink)
{
	const FTemporaryFolder Folder;
	const std::string Target = Folder.Write("target", "old");
	ASSERT_EQ(::symlink("target", Folder.File("link").c_str()), 0);
	std::string Error;
	ASSERT_TRUE(FFileAccess::Replace(Folder.File("link"), "new", Error)) << Error;
	EXPECT_EQ(FTemporaryFolder::ReadFile(Target), "new");
	EXPECT_TRUE(std::filesystem::is_symlink(Folder.File("link")));
}

TEST(FFileAccess, RefusesToWriteBelowARegularFile)
{
	const FTemporaryFolder Folder;
	const std::string Below = Folder.Write("file", "old") + "/level.json";
	EXPECT_EQ(ReplaceErrorOf(Below), Below + ": Not a directory");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("file")), "old");
}

TEST(FFileAccess, RefusesToWriteIntoAMissingFolder)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ(ReplaceErrorOf(Folder.File("none/a")), Folder.File("none/a") + ": No such file or directory");
}

TEST(FFileAccess, RefusesToReplaceAFolder)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ(ReplaceErrorOf(Folder.File("")), Folder.File("") + ": Is a directory");
}

TEST(FFileAccess, RefusesToReplaceADevice)
{
	EXPECT_EQ(ReplaceErrorOf("/dev/null"), "/dev/null: not a regular file");
}

TEST(FFileAccess, RefusesAFolderWithoutTheRightToWrite)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "old");
	ASSERT_EQ(::chmod(Path.c_str(), 0666), 0);
	ASSERT_EQ(::chmod(Folder.File("").c_str(), 0555), 0);
	const int Status = RunInChild([&Path] { return ReplaceFailsAsNobody(Path); });
	ASSERT_EQ(::chmod(Folder.File("").c_str(), 0700), 0);
	EXPECT_EQ(Status, 0);
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "old");
}

TEST(FFileAccess, RefusesAFileWithoutTheRightToWrite)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "old");
	ASSERT_EQ(::chmod(Path.c_str(), 0444), 0);
	ASSERT_EQ(::chmod(Folder.File("").c_str(), 0777), 0);
	EXPECT_EQ(RunInChild([&Path] { return ReplaceFailsAsNobody(Path); }), 0);
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "old");
}

TEST(FFileAccess, LeavesTheOldFileWhenTheSizeLimitIsExceeded)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "old");
	EXPECT_EQ(RunInChild([&Path] { return ReplaceFailsUnderSizeLimit(Path); }), 0);
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "old");
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"a"});
}

TEST(FFileAccess, KeepsErrorsOnOneLine)
{
	EXPECT_EQ(ReadErrorOf("/no\nsuch\x1B file"), "/no\\u000Asuch\\u001B file: No such file or directory");
}
