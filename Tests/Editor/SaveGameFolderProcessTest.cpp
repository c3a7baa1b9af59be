// Copyright Corvane. MIT License.
// Save games of processes that run into limits, race each other and are killed.
#include "FileSystemFault.h"
#include "SaveGameFolderFixture.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <thread>

namespace
{
	/** Large enough for several writes. */
	const std::string Large(size_t(200) * 1024, 'x');

	template <typename BodyType>
	pid_t StartChild(BodyType Body)
	{
		const pid_t Child = ::fork();
		if (Child == 0)
		{
			::_exit(Body() ? 0 : 1);
		}
		EXPECT_GT(Child, 0);
		return Child;
	}

	/** @return the status as waitpid gives it: 0 for a child whose body returned true. */
	int WaitFor(pid_t Child)
	{
		int Status = -1;
		EXPECT_EQ(::waitpid(Child, &Status, 0), Child);
		return Status;
	}

	/** From now on the process may write only so many bytes a file. */
	bool LimitFileSize(rlim_t Bytes)
	{
		std::signal(SIGXFSZ, SIG_IGN);
		const rlimit Limit{Bytes, Bytes};
		return ::setrlimit(RLIMIT_FSIZE, &Limit) == 0;
	}
}

class FSaveGameFolderProcess : public FSaveGameFolderFixture
{
protected:
	/** A payload that tells who wrote it, and of which one bit can't be missing. */
	static std::string MakeOwn(char Writer, int Round)
	{
		return MakeGame(std::string(static_cast<size_t>(2000 + Round), Writer));
	}

	static char GetWriter(const std::string& Payload)
	{
		// Behind it stands an empty name, which ends the members.
		return Payload[Payload.size() - 5];
	}

	static bool IsWhole(const std::string& Payload)
	{
		const size_t Rest = MakeGame("").size();
		return Payload.size() >= Rest + 2000 &&
			Payload == MakeOwn(GetWriter(Payload), static_cast<int>(Payload.size() - Rest) - 2000);
	}

	bool SaveQuietly(const std::string& Payload)
	{
		return System.SaveGame(false, TEXT("Slot"), 0,
			TArray<uint8>(reinterpret_cast<const uint8*>(Payload.data()), static_cast<int32>(Payload.size())));
	}

	/** Makes what killed processes have left two hours older. @return how many there are. */
	int AgeTemporaries() const
	{
		int Count = 0;
		for (const std::string& Name : List())
		{
			if (Name.front() == '.')
			{
				const auto Written = std::filesystem::last_write_time(File(Name));
				std::filesystem::last_write_time(File(Name), Written - std::chrono::hours(2));
				++Count;
			}
		}
		return Count;
	}
};

TEST_F(FSaveGameFolderProcess, KeepsTheOldSlotWhenTheSizeLimitIsReached)
{
	ASSERT_TRUE(Save("Slot", "old"));
	const pid_t Child = StartChild(
		[this]
		{
			return LimitFileSize(1000) && !Save("Slot", Large) && Errors == File("Slot.sav: File too large\n") &&
				Save("Other", "small");
		});
	EXPECT_EQ(WaitFor(Child), 0);
	EXPECT_EQ(Load("Slot"), "old");
	EXPECT_EQ(Load("Other"), "small");
	EXPECT_EQ(List(), (std::vector<std::string>{"Other.sav", "Slot.sav"}));
}

TEST_F(FSaveGameFolderProcess, PutsNothingAsideForASaveThatFails)
{
	Write("Slot.sav", "Dear diary");
	const pid_t Child = StartChild([this] { return LimitFileSize(1000) && !Save("Slot", Large); });
	EXPECT_EQ(WaitFor(Child), 0);
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.sav")), "Dear diary");
}

TEST_F(FSaveGameFolderProcess, SaysThatItHasNoRightToWrite)
{
	ASSERT_TRUE(Save("Slot", "old"));
	std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0755));
	const pid_t Child = StartChild(
		[this]
		{
			constexpr uid_t Nobody = 65534;
			if (::geteuid() != 0)
			{
				::chmod(File("").c_str(), 0555);
			}
			return (::geteuid() != 0 || ::setuid(Nobody) == 0) && !Save("Other", "new") &&
				Errors == File("Other.sav: Permission denied\n") && Load("Slot") == "old";
		});
	EXPECT_EQ(WaitFor(Child), 0);
	std::filesystem::permissions(File(""), std::filesystem::perms(0755));
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderProcess, IsAlwaysWholeWhenTwoSaveAtOnce)
{
	constexpr int NumSaves = 500;
	std::vector<pid_t> Children;
	for (const char Writer : {'a', 'b'})
	{
		Children.push_back(StartChild(
			[this, Writer]
			{
				bool bSaved = true;
				for (int Round = 0; Round < NumSaves; ++Round)
				{
					bSaved = SaveQuietly(MakeOwn(Writer, Round)) && bSaved;
				}
				return bSaved;
			}));
	}
	int NumLoaded = 0;
	int Status = -1;
	while (::waitpid(Children[0], &Status, WNOHANG) == 0)
	{
		// The first save may still be to come.
		if (Exists("Slot"))
		{
			ASSERT_TRUE(IsWhole(Load("Slot"))) << Errors;
			++NumLoaded;
		}
	}
	EXPECT_EQ(Status, 0);
	EXPECT_EQ(WaitFor(Children[1]), 0);
	EXPECT_GT(NumLoaded, 10);
	const std::string Last = Load("Slot");
	EXPECT_TRUE(Last == MakeOwn('a', NumSaves - 1) || Last == MakeOwn('b', NumSaves - 1));
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderProcess, IsTheOldOrTheNewOneWhenASaveIsKilled)
{
	std::minstd_rand Random(1);
	ASSERT_TRUE(SaveQuietly(MakeOwn('-', 0)));
	for (int Round = 0; Round < 200; ++Round)
	{
		const std::string Before = Load("Slot");
		const char Writer = static_cast<char>('a' + Round % 20);
		const pid_t Child = StartChild(
			[this, Writer]
			{
				for (int Save = 0;; ++Save)
				{
					SaveQuietly(MakeOwn(Writer, Save % 50));
				}
				return true;
			});
		std::this_thread::sleep_for(std::chrono::microseconds(Random() % 5000));
		ASSERT_EQ(::kill(Child, SIGKILL), 0);
		ASSERT_EQ(WaitFor(Child), SIGKILL);
		const std::string After = Load("Slot");
		ASSERT_TRUE(After == Before || (IsWhole(After) && GetWriter(After) == Writer)) << Errors;
	}
	// The next editor, some hours later.
	EXPECT_GT(AgeTemporaries(), 0);
	FSaveGameFolder Next(Folder.File("saved"));
	EXPECT_TRUE(Next.SaveGame(false, TEXT("Other"), 0, {1}));
	EXPECT_EQ(List(), (std::vector<std::string>{"Other.sav", "Slot.sav"}));
}

TEST_F(FSaveGameFolderProcess, RefusesToReplaceWhatItHasNoRoomToCopy)
{
	Write("Slot.sav", std::string(5000, 'x'));
	const pid_t Child = StartChild(
		[this]
		{
			const FFileSystemFault NoLinks("linkat", EPERM);
			return LimitFileSize(1000) && !Save("Slot", "new") &&
				Errors == File("Slot.sav: not a save game, which can't be kept aside: File too large\n");
		});
	EXPECT_EQ(WaitFor(Child), 0);
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.sav")), std::string(5000, 'x'));
}
