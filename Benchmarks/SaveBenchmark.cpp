// Copyright Corvane. MIT License.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "Kismet/GameplayStatics.h"
#include "SaveGameFolder.h"
#include "PlatformFeatures.h"
#include "SlotFile.h"
#include "ZAVSaveGame.h"

// What a save costs: the object's properties into bytes, and those into a file that is whole after any crash. In memory
// the program's own work shows, on a disk the waiting for it.

namespace
{
	using FClock = std::chrono::steady_clock;

	constexpr size_t NumInMemory = 1000;
	/** Fewer, as a disk takes long when others use it as well. */
	constexpr size_t NumOnDisk = 100;

	/** A new folder in Parent, removed with the object. */
	class FFolder
	{
	public:
		explicit FFolder(const char* Parent) : Path(std::string(Parent) + "/quillon-bench-XXXXXX")
		{
			if (::mkdtemp(Path.data()) == nullptr)
			{
				// Then saving fails, and with it the benchmark.
				Path.clear();
			}
		}
		FFolder(const FFolder&) = delete;
		FFolder& operator=(const FFolder&) = delete;
		~FFolder()
		{
			std::error_code Ignored;
			std::filesystem::remove_all(Path, Ignored);
		}

		std::string Path;
	};

	/** One measurement: the median of Count calls. */
	template <typename BodyType>
	void MeasureMedian(benchmark::State& State, size_t Count, BodyType Body)
	{
		std::vector<double> Seconds(Count);
		for (auto _ : State)
		{
			for (double& Second : Seconds)
			{
				const FClock::time_point Start = FClock::now();
				const bool bDone = Body();
				Second = std::chrono::duration<double>(FClock::now() - Start).count();
				if (!bDone)
				{
					State.SkipWithError("nothing was saved");
					return;
				}
			}
			std::nth_element(Seconds.begin(), Seconds.begin() + static_cast<std::ptrdiff_t>(Count / 2), Seconds.end());
			State.SetIterationTime(Seconds[Count / 2]);
		}
	}

	UZAVSaveGame* MakeGame()
	{
		auto* Game = static_cast<UZAVSaveGame*>(UGameplayStatics::CreateSaveGameObject(UZAVSaveGame::StaticClass()));
		Game->bSkipVersion = true;
		Game->OfferedVersion = TEXT("QuillonEditor-1.1.zip");
		return Game;
	}

	void Save(benchmark::State& State, const char* Parent, size_t Count)
	{
		const FFolder Folder(Parent);
		FSaveGameFolder Platform(Folder.Path);
		IPlatformFeaturesModule::Get().SetSaveGameSystem(&Platform);
		UZAVSaveGame* const Game = MakeGame();
		MeasureMedian(
			State, Count, [&] { return UGameplayStatics::SaveGameToSlot(Game, Game->SaveSlotName, Game->UserIndex); });
		IPlatformFeaturesModule::Get().SetSaveGameSystem(nullptr);
	}

	/** The least that any save that outlives a crash does: write the slot's bytes, wait for them, rename the file. */
	bool WriteAtLeast(const std::string& Temporary, const std::string& Path, const std::string& Bytes)
	{
		const int File = ::open(Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
		const bool bWritten = ::write(File, Bytes.data(), Bytes.size()) == static_cast<ssize_t>(Bytes.size()) &&
			::fsync(File) == 0 && ::close(File) == 0;
		return bWritten && std::rename(Temporary.c_str(), Path.c_str()) == 0;
	}

	void SaveFloor(benchmark::State& State, const char* Parent, size_t Count)
	{
		const FFolder Folder(Parent);
		TArray<uint8> Payload;
		UGameplayStatics::SaveGameToMemory(MakeGame(), Payload);
		const std::string Bytes = FSlotFile::Pack(Payload);
		const std::string Temporary = Folder.Path + "/temporary";
		const std::string Path = Folder.Path + "/slot";
		MeasureMedian(State, Count, [&] { return WriteAtLeast(Temporary, Path, Bytes); });
	}

	void SaveInMemory(benchmark::State& State)
	{
		Save(State, "/dev/shm", NumInMemory);
	}

	void SaveInMemoryFloor(benchmark::State& State)
	{
		SaveFloor(State, "/dev/shm", NumInMemory);
	}

	void SaveOnDisk(benchmark::State& State)
	{
		Save(State, "/tmp", NumOnDisk);
	}

	void SaveOnDiskFloor(benchmark::State& State)
	{
		SaveFloor(State, "/tmp", NumOnDisk);
	}
}

BENCHMARK(SaveInMemory)->UseManualTime()->Iterations(1);
BENCHMARK(SaveInMemoryFloor)->UseManualTime()->Iterations(1);
BENCHMARK(SaveOnDisk)->UseManualTime()->Iterations(1);
BENCHMARK(SaveOnDiskFloor)->UseManualTime()->Iterations(1);
