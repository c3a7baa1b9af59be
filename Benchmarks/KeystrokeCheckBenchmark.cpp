// Copyright Corvane. MIT License.
#include <benchmark/benchmark.h>

#include <cstring>

#include "AllocationCount.h"
#include "BenchmarkEditor.h"

#include "Widgets/Input/SEditableTextBox.h"
#include "ZAVSpoutSenderManager.h"

// What each keystroke in the wizard's box costs: the check of the name against all entries of two managers. The typed
// name is absent, so every entry is looked at.

namespace
{
	/** The least that any check does: length, then bytes, in one flat loop over the same strings. */
	bool IsTakenAtLeast(const TArray<FZAVSpoutSenderInterface>& Senders, const FString& Name)
	{
		const size_t Bytes = static_cast<size_t>(Name.Len()) * sizeof(TCHAR);
		for (const FZAVSpoutSenderInterface& Sender : Senders)
		{
			for (const FString* Taken : {&Sender.SpoutSenderName, &Sender.StandaloneSenderName})
			{
				if (Taken->Len() == Name.Len() && std::memcmp(**Taken, *Name, Bytes) == 0)
				{
					return true;
				}
			}
		}
		return false;
	}

	void KeystrokeCheck(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		const int32 Half = static_cast<int32>(State.range(0) / 2);
		Editor.PlaceManager(0, Half);
		Editor.PlaceManager(Half, Half);
		const FOnTextChanged& OnTextChanged = Editor.GetNameBox()->GetOnTextChanged();
		const FText Typed = FText::FromString(FBenchmarkEditor::MakeName(TEXT("c"), 0));
		const int64 Before = FAllocationCount::Get();
		for (auto _ : State)
		{
			OnTextChanged.ExecuteIfBound(Typed);
		}
		State.counters["allocations"] = benchmark::Counter(
			static_cast<double>(FAllocationCount::Get() - Before), benchmark::Counter::kAvgIterations);
	}

	void KeystrokeFloor(benchmark::State& State)
	{
		FBenchmarkEditor Editor;
		const int32 Half = static_cast<int32>(State.range(0) / 2);
		const AZAVSpoutSenderManager* const Managers[] = {
			&Editor.PlaceManager(0, Half), &Editor.PlaceManager(Half, Half)};
		const FString Typed = FBenchmarkEditor::MakeName(TEXT("c"), 0);
		for (auto _ : State)
		{
			bool bTaken = false;
			for (const AZAVSpoutSenderManager* Manager : Managers)
			{
				bTaken = bTaken || IsTakenAtLeast(Manager->SpoutSenders, Typed);
			}
			benchmark::DoNotOptimize(bTaken);
		}
	}
}

BENCHMARK(KeystrokeCheck)->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(KeystrokeFloor)->RangeMultiplier(10)->Range(10, 100000);
