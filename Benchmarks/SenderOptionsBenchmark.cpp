// Copyright Corvane. MIT License.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <random>

#include "AllocationCount.h"
#include "BenchmarkDetails.h"
#include "BenchmarkEditor.h"

#include "Engine/World.h"
#include "Widgets/Text/STextBlock.h"
#include "ZAVSpoutNames.h"
#include "ZAVSpoutReceiverManager.h"

// What the closed drop-down of sender names costs: a window asks it for its text again and again, and each time the
// senders are asked for and the list is brought up to date.

namespace
{
	using FClock = std::chrono::steady_clock;

	TArray<FString> MakeSenders(int64_t Num)
	{
		TArray<FString> Senders;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Senders.Add(FBenchmarkEditor::MakeName(TEXT("a"), Index));
		}
		return Senders;
	}

	TArray<FString> Reverse(const TArray<FString>& Senders)
	{
		TArray<FString> Reversed = Senders;
		std::reverse(Reversed.begin(), Reversed.end());
		return Reversed;
	}

	TArray<FString> Shuffle(const TArray<FString>& Senders)
	{
		TArray<FString> Shuffled = Senders;
		std::shuffle(Shuffled.begin(), Shuffled.end(), std::minstd_rand(1));
		return Shuffled;
	}

	/** The text of a receiver that takes one from the middle of these senders. */
	class FSenderLabel
	{
	public:
		explicit FSenderLabel(const TArray<FString>& Senders) : FSenderLabel(Senders, Senders) {}
		/** @param FormerSenders the same ones, in the order in which they came into the list. */
		FSenderLabel(const TArray<FString>& Senders, const TArray<FString>& FormerSenders)
		{
			AZAVSpoutReceiverManager* Manager = Editor.GetWorld().SpawnActor<AZAVSpoutReceiverManager>();
			// The list outlives the panels: what earlier ones left in it goes first.
			ZAVSpoutNames::SetActiveSenderNames({});
			Open(*Manager);
			ZAVSpoutNames::SetActiveSenderNames(FormerSenders);
			Manager->SpoutReceivers[0].UseFirstAvailableSender = false;
			Manager->SpoutReceivers[0].Name = Senders[Senders.Num() / 2];
			Open(*Manager);
			ZAVSpoutNames::SetActiveSenderNames(Senders);
			Label = StaticCastSharedPtr<STextBlock>(Details->FindInDropDown("STextBlock"));
		}
		~FSenderLabel() { ZAVSpoutNames::SetActiveSenderNames({}); }
		void Ask() const { benchmark::DoNotOptimize(&Label->GetText()); }

	private:
		void Open(UObject& Object) { Details = std::make_unique<FBenchmarkDetails>(TArray<UObject*>{&Object}); }

		FBenchmarkEditor Editor;
		std::unique_ptr<FBenchmarkDetails> Details;
		TSharedPtr<STextBlock> Label;
	};

	/** The least that any such list does: asks for the senders, compares them with the last ones, copies its options.
	 */
	class FSenderFloor
	{
	public:
		explicit FSenderFloor(const TArray<FString>& Senders) : Last(Senders)
		{
			ZAVSpoutNames::SetActiveSenderNames(Senders);
			for (const FString& Sender : Senders)
			{
				Options.Add(MakeShared<FString>(Sender));
			}
			Options.Add(MakeShared<FString>(TEXT("Use first available sender")));
		}
		~FSenderFloor() { ZAVSpoutNames::SetActiveSenderNames({}); }
		void Ask() const
		{
			const TArray<FString> Senders = ZAVSpoutNames::GetActiveSenderNames();
			int32 NumEqual = 0;
			for (int32 Index = 0; Index < Senders.Num(); ++Index)
			{
				NumEqual += Senders[Index].Equals(Last[Index]) ? 1 : 0;
			}
			const TArray<TSharedPtr<FString>> Copy = Options;
			benchmark::DoNotOptimize(NumEqual);
			benchmark::DoNotOptimize(Copy.GetData());
		}

	private:
		TArray<FString> Last;
		TArray<TSharedPtr<FString>> Options;
	};

	/** Nothing changes. */
	template <typename AskedType>
	void AskAgain(benchmark::State& State, const AskedType& Asked)
	{
		Asked.Ask();
		const int64 Before = FAllocationCount::Get();
		for (auto _ : State)
		{
			Asked.Ask();
		}
		State.counters["allocations"] = benchmark::Counter(
			static_cast<double>(FAllocationCount::Get() - Before), benchmark::Counter::kAvgIterations);
	}

	/** The senders are the ones and the others by turns. Only the asking is timed. */
	template <typename AskedType>
	void AskByTurns(
		benchmark::State& State, const AskedType& Asked, const TArray<FString>& Ones, const TArray<FString>& Others)
	{
		bool bOthers = false;
		for (auto _ : State)
		{
			bOthers = !bOthers;
			ZAVSpoutNames::SetActiveSenderNames(bOthers ? Others : Ones);
			const FClock::time_point Start = FClock::now();
			Asked.Ask();
			State.SetIterationTime(std::chrono::duration<double>(FClock::now() - Start).count());
		}
	}

	void SenderLabel(benchmark::State& State)
	{
		AskAgain(State, FSenderLabel(MakeSenders(State.range(0))));
	}

	void SenderFloor(benchmark::State& State)
	{
		AskAgain(State, FSenderFloor(MakeSenders(State.range(0))));
	}

	void SenderLabelReversed(benchmark::State& State)
	{
		const TArray<FString> Senders = MakeSenders(State.range(0));
		const FSenderLabel Label(Senders);
		ZAVSpoutNames::SetActiveSenderNames(Reverse(Senders));
		AskAgain(State, Label);
	}

	template <typename AskedType>
	void Reversing(benchmark::State& State)
	{
		const TArray<FString> Senders = MakeSenders(State.range(0));
		AskByTurns(State, AskedType(Senders), Senders, Reverse(Senders));
	}

	/** One of the senders is another one by turns. */
	template <typename AskedType>
	void ChangeOne(benchmark::State& State, const AskedType& Asked, const TArray<FString>& Senders)
	{
		TArray<FString> Others = Senders;
		Others[Others.Num() / 3] = FBenchmarkEditor::MakeName(TEXT("b"), 0);
		AskByTurns(State, Asked, Senders, Others);
	}

	/** All senders stop and others start, in no order that helps. */
	void SenderLabelReplacing(benchmark::State& State)
	{
		const TArray<FString> Senders = Shuffle(MakeSenders(State.range(0)));
		TArray<FString> Others;
		for (const FString& Sender : Shuffle(Senders))
		{
			Others.Add(Sender + TEXT("b"));
		}
		AskByTurns(State, FSenderLabel(Senders), Senders, Others);
	}

	void SenderLabelReversing(benchmark::State& State)
	{
		Reversing<FSenderLabel>(State);
	}
	void SenderFloorReversing(benchmark::State& State)
	{
		Reversing<FSenderFloor>(State);
	}
	void SenderLabelChanging(benchmark::State& State)
	{
		const TArray<FString> Senders = MakeSenders(State.range(0));
		ChangeOne(State, FSenderLabel(Senders), Senders);
	}

	/** The list has been there for long: it is in another order than the senders. */
	void SenderLabelShuffledChanging(benchmark::State& State)
	{
		const TArray<FString> Senders = MakeSenders(State.range(0));
		ChangeOne(State, FSenderLabel(Senders, Shuffle(Senders)), Senders);
	}

	void SenderFloorChanging(benchmark::State& State)
	{
		const TArray<FString> Senders = MakeSenders(State.range(0));
		ChangeOne(State, FSenderFloor(Senders), Senders);
	}
}

BENCHMARK(SenderLabel)->Arg(5)->Arg(64)->Arg(500)->Arg(5000);
BENCHMARK(SenderLabelReversed)->Arg(5)->Arg(64)->Arg(500)->Arg(5000);
BENCHMARK(SenderFloor)->Arg(5)->Arg(64)->Arg(500)->Arg(5000);
BENCHMARK(SenderLabelReversing)->Arg(500)->Arg(5000)->UseManualTime();
BENCHMARK(SenderFloorReversing)->Arg(500)->Arg(5000)->UseManualTime();
BENCHMARK(SenderLabelReplacing)->Arg(500)->Arg(5000)->UseManualTime();
BENCHMARK(SenderLabelChanging)->Arg(5000)->UseManualTime();
BENCHMARK(SenderLabelShuffledChanging)->Arg(5000)->UseManualTime();
BENCHMARK(SenderFloorChanging)->Arg(5000)->UseManualTime();
