// Copyright Corvane. MIT License.
#include <benchmark/benchmark.h>

#include <chrono>

#include "BenchmarkEditor.h"

#include "Editor.h"
#include "EditorAssets.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "ZAVSpoutSenderManager.h"

// How the creation of a setup grows with the level: the click on the wizard's button in levels of more and more actors.

namespace
{
	using FClock = std::chrono::steady_clock;

	void FillLevel(FBenchmarkEditor& Editor, int64_t NumActors)
	{
		for (int64_t Index = 0; Index < NumActors; ++Index)
		{
			Editor.GetWorld().SpawnActor<AActor>();
		}
	}

	/**
	 * Takes back what a click made, so that the level never grows. No garbage is collected: that would push the level
	 * out of the processor's caches, which the floor finds there.
	 */
	void TakeBack(FBenchmarkEditor& Editor, AZAVSpoutSenderManager& Manager)
	{
		Manager.SpoutSenders.Empty();
		FEditorAssets::RemoveAll();
		TArray<AActor*>& Actors = Editor.GetWorld().PersistentLevel->Actors;
		GEditor->SelectNone(true, true, true);
		Editor.GetWorld().DestroyActor(Actors.Last());
		Actors.RemoveAt(Actors.Num() - 1);
		Editor.PressButton();
	}

	void SetupCreation(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		FillLevel(Editor, State.range(0));
		AZAVSpoutSenderManager& Manager = Editor.PlaceManager(0, 0);
		for (auto _ : State)
		{
			Editor.EnterName(TEXT("Main"));
			const FClock::time_point Start = FClock::now();
			Editor.PressButton();
			State.SetIterationTime(std::chrono::duration<double>(FClock::now() - Start).count());
			if (Manager.SpoutSenders.Num() != 1)
			{
				State.SkipWithError("no setup was created");
				return;
			}
			TakeBack(Editor, Manager);
		}
	}

	/** The least that a look through the level costs: one pointer after the other, and a test of each one's class. */
	void ActorWalkFloor(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		FillLevel(Editor, State.range(0));
		const UClass* const Wanted = AZAVSpoutSenderManager::StaticClass();
		for (auto _ : State)
		{
			int32 NumFound = 0;
			for (const AActor* Actor : Editor.GetWorld().PersistentLevel->Actors)
			{
				NumFound += Actor != nullptr && Actor->IsA(Wanted) ? 1 : 0;
			}
			benchmark::DoNotOptimize(NumFound);
		}
	}
}

BENCHMARK(SetupCreation)->Arg(10)->Arg(10000)->UseManualTime()->Iterations(200);
BENCHMARK(ActorWalkFloor)->Arg(10000);
