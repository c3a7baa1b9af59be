// Copyright Corvane. MIT License.
// What a save must not lose: files behind links, on file systems with other rules, and in a system that runs short.
#include "FileSystemFault.h"
#include "SaveGameFolderFixture.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>

namespace
{
	dev_t GetDevice(const std::string& Path)
	{
		struct stat Info
		{};
		EXPECT_EQ(::stat(Path.c_str(), &Info), 0) << Path;
		return Info.st_dev;
	}

	/** A folder for temporary files on another file system than Path. */
	std::string FindOtherFileSystem(const std::string& Path)
	{
		const std::string Memory = "/dev/shm";
		return GetDevice(Path) != GetDevice(Memory) ? Memory : "/tmp";
	}

	/** A file somewhere else, removed with the object. */
	struct FForeignFile
	{
		FForeignFile(const std::string& Parent, const std::string& Bytes)
			: Path(Parent + "/quillon-test-" + std::to_string(::getpid()))
		{
			std::ofstream(Path) << Bytes;
		}
		FForeignFile(const FForeignFile&) = delete;
		FForeignFile& operator=(const FForeignFile&) = delete;
		~FForeignFile() { std::filesystem::remove(Path); }

		const std::string Path;
	};
}

class FSaveGameFolderLoss : public FSaveGameFolderFixture
{};

TEST_F(FSaveGameFolderLoss, KeepsWhatASymbolicLinkLeadsTo)
{
	const std::string Target = Folder.Write("diary", "Dear diary");
	Write("Other.sav", "");
	std::filesystem::create_symlink(Target, File("Slot.sav"));
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.damaged-1.sav")), "Dear diary");
	EXPECT_EQ(Load("Slot"), "new");
}

TEST_F(FSaveGameFolderLoss, WritesWhatALinkToNothingLeadsTo)
{
	std::filesystem::create_directories(File(""));
	std::filesystem::create_symlink("../target", File("Slot.sav"));
	EXPECT_FALSE(Exists("Slot"));
	EXPECT_EQ(Load("Slot"), "(none)");
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(Errors, "");
	EXPECT_TRUE(std::filesystem::is_symlink(File("Slot.sav")));
	EXPECT_TRUE(std::filesystem::is_regular_file(Folder.File("saved/target")));
	EXPECT_EQ(Load("Slot"), "new");
}

TEST_F(FSaveGameFolderLoss, RefusesToFollowALinkIntoAMissingFolder)
{
	std::filesystem::create_directories(File(""));
	std::filesystem::create_symlink("none/target", File("Slot.sav"));
	EXPECT_FALSE(Save("Slot", "new"));
	EXPECT_EQ(Errors, File("none/target: No such file or directory\n"));
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	EXPECT_TRUE(std::filesystem::is_symlink(File("Slot.sav")));
}

TEST_F(FSaveGameFolderLoss, KeepsACopyOfWhatIsOnAnotherFileSystem)
{
	const FForeignFile Other(FindOtherFileSystem(Folder.File("")), "Dear diary");
	std::filesystem::create_directories(File(""));
	std::filesystem::create_symlink(Other.Path, File("Slot.sav"));
	const std::string Aside = File("Slot.damaged-1.sav");
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(Errors, File("Slot.sav: not a save game; kept as ") + Aside + '\n');
	EXPECT_EQ(FTemporaryFolder::ReadFile(Aside), "Dear diary");
	EXPECT_EQ(List(), (std::vector<std::string>{"Slot.damaged-1.sav", "Slot.sav"}));
	EXPECT_TRUE(std::filesystem::is_symlink(File("Slot.sav")));
	EXPECT_EQ(Load("Slot"), "new");
}

TEST_F(FSaveGameFolderLoss, SavesNothingOverWhatItCanNotKeep)
{
	Write("Slot.sav", "Dear diary");
	for (const auto& [Code, Reason] :
		{std::pair(ENOSPC, "No space left on device"), std::pair(EDQUOT, "Disk quota exceeded")})
	{
		const FFileSystemFault Fault("linkat", Code);
		EXPECT_FALSE(Save("Slot", "new"));
		EXPECT_EQ(Errors, File("Slot.sav: not a save game, which can't be kept aside: ") + Reason + '\n');
		EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.sav")), "Dear diary");
		EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	}
}

TEST_F(FSaveGameFolderLoss, PutsNoGoodSlotAsideForLackOfFileDescriptors)
{
	ASSERT_TRUE(Save("Slot", MakeGame("old")));
	const std::string Bytes = FTemporaryFolder::ReadFile(File("Slot.sav"));
	for (const auto& [Code, Reason] : {std::pair(EMFILE, "Too many open files"),
			 std::pair(ENFILE, "Too many open files in system"), std::pair(ENOMEM, "Cannot allocate memory")})
	{
		const FFileSystemFault Fault("open", Code);
		EXPECT_FALSE(Save("Slot", MakeGame("new")));
		EXPECT_EQ(Errors, File("Slot.sav: ") + Reason + '\n');
	}
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.sav")), Bytes);
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderLoss, PutsAsideWhatItHasNoRightToRead)
{
	ASSERT_TRUE(Save("Slot", MakeGame("old")));
	const FFileSystemFault Fault("open", EACCES);
	EXPECT_TRUE(Save("Slot", MakeGame("new")));
	EXPECT_EQ(Errors, File("Slot.sav: could not be read; kept as ") + File("Slot.damaged-1.sav\n"));
}

TEST_F(FSaveGameFolderLoss, TakesASlotForAFreeOneThatGoesWhileItIsLookedAt)
{
	Write("Slot.sav", "Dear diary");
	{
		const FFileSystemFault Fault("open", ENOENT);
		EXPECT_TRUE(Exists("Slot"));
		EXPECT_EQ(Load("Slot"), "(none)");
		EXPECT_EQ(Errors, "");
		EXPECT_TRUE(Save("Slot", "new"));
		EXPECT_EQ(Errors, "");
	}
	Write("Slot.sav", "Dear diary");
	const FFileSystemFault Fault("linkat", ENOENT);
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(Errors, "");
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderLoss, FlushesTheFolderInWhichItKeepsAFileAside)
{
	const std::string Target = Folder.Write("diary", "Dear diary");
	std::filesystem::create_directories(File(""));
	std::filesystem::create_symlink(Target, File("Slot.sav"));
	FFileSystemFault::TakeFlushed();
	EXPECT_TRUE(Save("Slot", "new"));
	const std::vector<std::string> Flushed = FFileSystemFault::TakeFlushed();
	ASSERT_EQ(Flushed.size(), 3U);
	EXPECT_EQ(Flushed[0].rfind(Folder.File(".quillon-"), 0), 0U) << Flushed[0];
	EXPECT_EQ(Flushed[1] + '/', File(""));
	EXPECT_EQ(Flushed[2] + '/', Folder.File(""));
}

TEST_F(FSaveGameFolderLoss, RemovesWhatKilledSavesHaveLeftOnceAnHour)
{
	Write(".quillon-aaaaaa", "old");
	const auto Age = [this](const std::string& Name)
	{
		std::filesystem::last_write_time(
			File(Name), std::filesystem::file_time_type::clock::now() - std::chrono::minutes(61));
	};
	Age(".quillon-aaaaaa");
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	Write(".quillon-bbbbbb", "old");
	Age(".quillon-bbbbbb");
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_TRUE(std::filesystem::exists(File(".quillon-bbbbbb"))) << "looking takes time";
	FSaveGameFolder Next(Folder.File("saved"));
	EXPECT_TRUE(Next.SaveGame(false, TEXT("Other"), 0, {1}));
	EXPECT_FALSE(std::filesystem::exists(File(".quillon-bbbbbb")));
}
