// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <benchmark/benchmark.h>

#include "BenchmarkWindow.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <sstream>

#include "ActorEdits.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "LevelFile.h"
#include "TemporaryFolder.h"

// What a user waits for in front of the window, and what the window costs while nobody does anything.

namespace
{
	constexpr int NumSenders = 64;

	/** The parts of a first frame, as quillon-first-frame prints them. */
	const char* const PartNames[] = {"toolkit", "engine", "window", "frame"};
	constexpr int64_t AllParts = -1;

	/** Starts a process up to its first frame. @return the seconds of one part, or of all; negative on failure. */
	double RunFirstFrame(const char* What, int64_t Part)
	{
		const std::string Program =
			(std::filesystem::read_symlink("/proc/self/exe").parent_path() / "quillon-first-frame").string();
		FILE* Output = ::popen((Program + " " + What).c_str(), "r");
		std::array<char, 64> Line{};
		double Seconds = 0.0;
		int NumParts = 0;
		while (Output && std::fgets(Line.data(), Line.size(), Output))
		{
			std::istringstream Words(Line.data());
			std::string Name;
			double Nanoseconds = 0.0;
			Words >> Name >> Nanoseconds;
			Seconds += Part == AllParts || Name == PartNames[Part] ? Nanoseconds * 1e-9 : 0.0;
			++NumParts;
		}
		const bool bDone = Output && ::pclose(Output) == 0 && NumParts == static_cast<int>(std::size(PartNames));
		return bDone ? Seconds : -1.0;
	}

	void MeasureFirstFrame(benchmark::State& State, const char* What, int64_t Part)
	{
		for (auto _ : State)
		{
			const double Seconds = RunFirstFrame(What, Part);
			if (Seconds < 0.0)
			{
				State.SkipWithError("quillon-first-frame failed");
				return;
			}
			State.SetIterationTime(Seconds);
		}
	}

	/** The least that shows a window of this toolkit in this style: one with nothing in it. */
	void EmptyWindowFirstFrame(benchmark::State& State)
	{
		MeasureFirstFrame(State, "empty", AllParts);
	}
	BENCHMARK(EmptyWindowFirstFrame)->UseManualTime();

	/** Toolkit, engine and plugin started; toolbar, viewport and panels of the empty level made, filled, painted. */
	void WindowFirstFrame(benchmark::State& State)
	{
		MeasureFirstFrame(State, "editor", AllParts);
	}
	BENCHMARK(WindowFirstFrame)->UseManualTime();

	void WindowFirstFramePart(benchmark::State& State)
	{
		MeasureFirstFrame(State, "editor", State.range(0));
	}
	BENCHMARK(WindowFirstFramePart)->DenseRange(0, 3)->UseManualTime();

	/** A frame in which nothing happens, of a window with nothing open and nothing selected. */
	void EmptyTick(benchmark::State& State)
	{
		FBenchmarkWindow Window;
		Window.Open();
		Window.Settle();
		for (auto _ : State)
		{
			Window.Frame();
		}
	}
	BENCHMARK(EmptyTick);

	/** The same with the wizard open beside the details of a receiver, with 64 senders on the machine. */
	void IdleTick(benchmark::State& State)
	{
		FBenchmarkWindow Window;
		Window.Open();
		Window.ShowWizardAndReceiver(NumSenders);
		Window.Settle();
		for (auto _ : State)
		{
			Window.Frame();
		}
	}
	BENCHMARK(IdleTick);

	/** From the file to the level, its outliner and its view painted. */
	void LevelOpening(benchmark::State& State)
	{
		FBenchmarkWindow Window;
		Window.Open();
		Window.FillLevel(static_cast<int32>(State.range(0)));
		const FTemporaryFolder Folder;
		const std::string File = Folder.File("level.json");
		std::string Error;
		if (!FLevelFile::Save(File, Error))
		{
			State.SkipWithError(Error.c_str());
		}
		for (auto _ : State)
		{
			if (!FLevelFile::Open(File, Error))
			{
				State.SkipWithError(Error.c_str());
			}
			Window.Frame();
		}
	}
	BENCHMARK(LevelOpening)->Arg(1000)->Arg(10000)->Unit(benchmark::kNanosecond);

	/** One actor after the other, each shown in outliner, viewport and details. */
	void SelectOne(benchmark::State& State)
	{
		FBenchmarkWindow Window;
		Window.Open();
		const std::vector<AActor*> Actors = Window.FillLevel(static_cast<int32>(State.range(0)));
		size_t Next = 0;
		for (auto _ : State)
		{
			FActorEdits::SelectOnly({Actors[Next++ % Actors.size()]});
			Window.Frame();
		}
	}
	BENCHMARK(SelectOne)->Arg(1000)->Arg(10000)->Unit(benchmark::kNanosecond);
}
