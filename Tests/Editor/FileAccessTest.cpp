// Copyright Corvane. MIT License.
#include "FileAccess.h"
#include "FileSystemFault.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>

namespace
{
	constexpr size_t MaxSize = 1024;
	constexpr uid_t Nobody = 65534;

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

TEST(FFileAccess, ReadsAFileThatComesInPieces)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "all of the text");
	std::string Bytes;
	std::string Error;
	const FFileSystemFault Fault("read", FFileSystemFault::OneByte);
	ASSERT_TRUE(FFileAccess::Read(Path, MaxSize, Bytes, Error)) << Error;
	EXPECT_EQ(Bytes, "all of the text");
}

TEST(FFileAccess, ReadsAFileThatIsShorterThanItWasMeasured)
{
	// The system gives each of these files a page.
	std::string Bytes;
	std::string Error;
	ASSERT_TRUE(FFileAccess::Read("/sys/devices/system/cpu/online", 10000, Bytes, Error)) << Error;
	EXPECT_GE(Bytes.size(), 2U);
	EXPECT_EQ(Bytes.back(), '\n');
}

TEST(FFileAccess, RefusesAFileThatIsLargerThanItWasMeasured)
{
	// The system measures none of these files.
	EXPECT_EQ(ReadErrorOf("/proc/self/maps"), "/proc/self/maps: File too large");
}

TEST(FFileAccess, SaysThatReadingFailed)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "text");
	const FFileSystemFault Fault("read", EIO);
	EXPECT_EQ(ReadErrorOf(Path), Path + ": Input/output error");
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

TEST(FFileAccess, MakesWhatALinkToNothingLeadsTo)
{
	const FTemporaryFolder Folder;
	std::filesystem::create_directory(Folder.File("below"));
	std::filesystem::create_symlink("below/second", Folder.File("first"));
	std::filesystem::create_symlink("../target", Folder.File("below/second"));
	std::filesystem::create_symlink(Folder.File("other"), Folder.File("whole"));
	std::string Error;
	ASSERT_TRUE(FFileAccess::Replace(Folder.File("first"), "new", Error)) << Error;
	ASSERT_TRUE(FFileAccess::Replace(Folder.File("whole"), "other", Error)) << Error;
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("target")), "new");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("other")), "other");
	EXPECT_EQ(Folder.List(), (std::vector<std::string>{"below", "first", "other", "target", "whole"}));
	EXPECT_TRUE(std::filesystem::is_symlink(Folder.File("first")));
	EXPECT_TRUE(std::filesystem::is_symlink(Folder.File("below/second")));
}

TEST(FFileAccess, RefusesLinksThatLeadIntoMissingFoldersOrInACircle)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.File("link");
	std::filesystem::create_symlink("none/target", Path);
	EXPECT_EQ(ReplaceErrorOf(Path), Folder.File("none/target: No such file or directory"));
	EXPECT_TRUE(std::filesystem::is_symlink(Path));
	std::filesystem::create_symlink("circle", Folder.File("circle"));
	EXPECT_EQ(ReplaceErrorOf(Folder.File("circle")), Folder.File("circle: Too many levels of symbolic links"));
	EXPECT_EQ(Folder.List(), (std::vector<std::string>{"circle", "link"}));
}

TEST(FFileAccess, TellsWhetherTheSystemOrTheFileIsTheReason)
{
	const FTemporaryFolder Folder;
	for (const auto& [Path, Code] :
		{std::pair(Folder.File("none"), ENOENT), std::pair(Folder.Write("file", "") + "/below", ENOTDIR),
			std::pair(Folder.File(""), 0), std::pair(Folder.Write("large", std::string(MaxSize + 1, 'x')), 0)})
	{
		std::string Bytes;
		std::string Error;
		int ReadCode = -1;
		EXPECT_FALSE(FFileAccess::Read(Path, MaxSize, Bytes, Error, &ReadCode));
		EXPECT_EQ(ReadCode, Code) << Path;
	}
}

TEST(FFileAccess, RemovesWhatIsLeftBesideAFileAndBesideWhatItLeadsTo)
{
	const FTemporaryFolder Folder;
	std::filesystem::create_directory(Folder.File("other"));
	std::filesystem::create_symlink("other/target", Folder.File("link"));
	for (const char* Name : {".quillon-aaaaaa", "other/.quillon-bbbbbb"})
	{
		std::filesystem::last_write_time(
			Folder.Write(Name, ""), std::filesystem::file_time_type::clock::now() - std::chrono::hours(2));
	}
	FFileAccess::RemoveLeftOver(Folder.File("file"));
	EXPECT_EQ(Folder.List(), (std::vector<std::string>{"link", "other"}));
	EXPECT_FALSE(std::filesystem::is_empty(Folder.File("other")));
	FFileAccess::RemoveLeftOver(Folder.File("link"));
	EXPECT_TRUE(std::filesystem::is_empty(Folder.File("other")));
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

TEST(FFileAccess, RefusesAFileThatIsItsOwnersOnly)
{
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("a", "old");
	ASSERT_EQ(::chmod(Folder.File("").c_str(), 0777), 0);
	if (::geteuid() == 0)
	{
		ASSERT_EQ(::chmod(Path.c_str(), 0644), 0);
		EXPECT_EQ(RunInChild([&Path] { return ReplaceFailsAsNobody(Path); }), 0) << "somebody else's";
		ASSERT_EQ(::chown(Path.c_str(), Nobody, Nobody), 0);
	}
	ASSERT_EQ(::chmod(Path.c_str(), 0444), 0);
	EXPECT_EQ(RunInChild([&Path] { return ReplaceFailsAsNobody(Path); }), 0) << "one's own";
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
