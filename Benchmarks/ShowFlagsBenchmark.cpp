// Copyright Corvane. MIT License.
#include <benchmark/benchmark.h>

#include <vector>

#include "AllocationCount.h"
#include "BenchmarkDetails.h"
#include "BenchmarkEditor.h"

#include "Engine/World.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"

// What the check boxes of the show flags cost: a window asks each of them for its state again and again, and each looks
// through the overrides of all selected components.

namespace
{
	/** The names of the flags that have boxes. */
	std::vector<FString> GetOfferedFlags()
	{
		std::vector<FString> Flags;
		for (const uint32 Index : {120, 114, 13, 110, 108, 68, 70, 107, 72, 87, 88, 62, 63, 66, 137, 123, 12, 67, 131,
				 143, 5, 142, 60, 118, 0, 42, 47, 59, 3, 4, 29, 1, 6, 112, 38})
		{
			Flags.push_back(FEngineShowFlags::FindNameByIndex(Index));
		}
		return Flags;
	}

	/** Cameras whose components have overrides of the first so many of the flags. */
	std::vector<UZAVCaptureComponent*> PlaceComponents(FBenchmarkEditor& Editor, int64_t Num, size_t NumOverrides)
	{
		const std::vector<FString> Flags = GetOfferedFlags();
		std::vector<UZAVCaptureComponent*> Components;
		for (int64_t Index = 0; Index < Num; ++Index)
		{
			Components.push_back(Editor.GetWorld().SpawnActor<AZAVCineCamCapture>()->CaptureComponent);
			for (size_t Flag = 0; Flag < NumOverrides; ++Flag)
			{
				FEngineShowFlagsSetting& Setting = Components.back()->ShowFlagSettings.AddDefaulted_GetRef();
				Setting.ShowFlagName = Flags[Flag];
				Setting.Enabled = Flag % 2 == 0;
			}
		}
		return Components;
	}

	void AskBoxes(benchmark::State& State, size_t NumOverrides)
	{
		FBenchmarkEditor Editor;
		TArray<UObject*> Objects;
		for (UZAVCaptureComponent* Component : PlaceComponents(Editor, State.range(0), NumOverrides))
		{
			Objects.Add(Component);
		}
		const FBenchmarkDetails Details(Objects);
		const std::vector<TSharedRef<SWidget>> Boxes = Details.GetFlagBoxes();
		if (Boxes.size() != 35)
		{
			State.SkipWithError("not 35 boxes");
			return;
		}
		const int64 Before = FAllocationCount::Get();
		for (auto _ : State)
		{
			for (const TSharedRef<SWidget>& Box : Boxes)
			{
				benchmark::DoNotOptimize(static_cast<const SCheckBox&>(*Box).GetCheckedState());
			}
		}
		State.counters["allocations"] = benchmark::Counter(
			static_cast<double>(FAllocationCount::Get() - Before), benchmark::Counter::kAvgIterations);
	}

	/** Whether the component has the flag on, by override or by archetype. */
	bool IsOn(const UZAVCaptureComponent& Component, const FString& Flag, uint32 FlagIndex)
	{
		for (const FEngineShowFlagsSetting& Setting : Component.ShowFlagSettings)
		{
			if (Setting.ShowFlagName == Flag)
			{
				return Setting.Enabled;
			}
		}
		return static_cast<const UZAVCaptureComponent*>(Component.GetArchetype())->ShowFlags.GetSingleFlag(FlagIndex);
	}

	/** A bare loop over the same data. */
	void LookAtFlags(benchmark::State& State, size_t NumOverrides)
	{
		FBenchmarkEditor Editor;
		const std::vector<UZAVCaptureComponent*> Components = PlaceComponents(Editor, State.range(0), NumOverrides);
		const std::vector<FString> Flags = GetOfferedFlags();
		for (auto _ : State)
		{
			for (const FString& Flag : Flags)
			{
				const uint32 FlagIndex = static_cast<uint32>(FEngineShowFlags::FindIndexByName(*Flag));
				int32 NumOn = 0;
				for (const UZAVCaptureComponent* Component : Components)
				{
					NumOn += IsOn(*Component, Flag, FlagIndex) ? 1 : 0;
				}
				benchmark::DoNotOptimize(NumOn);
			}
		}
	}

	void ShowFlagBoxes(benchmark::State& State)
	{
		AskBoxes(State, 35);
	}
	void ShowFlagFloor(benchmark::State& State)
	{
		LookAtFlags(State, 35);
	}
	void ShowFlagBoxesWithoutOverrides(benchmark::State& State)
	{
		AskBoxes(State, 0);
	}
	void ShowFlagFloorWithoutOverrides(benchmark::State& State)
	{
		LookAtFlags(State, 0);
	}

	void CapturePanel(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		const TArray<UObject*> Objects = {PlaceComponents(Editor, 1, 0)[0]};
		for (auto _ : State)
		{
			const FBenchmarkDetails Details(Objects);
		}
	}

	/** The least that such a panel is made of: a text and a box for each flag. */
	void CapturePanelFloor(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		const std::vector<FString> Flags = GetOfferedFlags();
		for (auto _ : State)
		{
			std::vector<TSharedRef<SWidget>> Widgets;
			for (const FString& Flag : Flags)
			{
				Widgets.push_back(SNew(STextBlock).Text(FText::FromString(Flag)));
				Widgets.push_back(SNew(SCheckBox));
			}
			benchmark::DoNotOptimize(Widgets.data());
		}
	}
}

BENCHMARK(ShowFlagBoxes)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(ShowFlagFloor)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(ShowFlagBoxesWithoutOverrides)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(ShowFlagFloorWithoutOverrides)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(CapturePanel);
BENCHMARK(CapturePanelFloor);
