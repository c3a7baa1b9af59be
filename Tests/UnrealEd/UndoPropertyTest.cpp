// Copyright Corvane. MIT License.
// Random work on a level, in steps and outside of them, against a plain model of what undo and redo must leave.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "UndoFixture.h"

#include <set>

namespace
{
	const int32 NoActor = -1;

	struct FEntryModel
	{
		int32 Count = 7;
		int32 Label = 0;
	};

	struct FStateModel
	{
		int32 Number = 3;
		int32 Target = NoActor;
		std::vector<FEntryModel> Entries;
	};

	struct FActorModel
	{
		AUndoActor* Actor;
		FStateModel State;
		bool bAlive = true;
		bool bInLevel = true;
	};

	/** A value that a step changed. */
	struct FChangeModel
	{
		enum EField
		{
			Number,
			Target,
			Entries,
			Count,
			Label
		};

		size_t Actor;
		EField Field;
		size_t Index;
		FStateModel Before;
		FStateModel After;

		/** Copies the one value. */
		void Apply(FStateModel& To, const FStateModel& From) const
		{
			const bool bThere = Index < To.Entries.size();
			switch (Field)
			{
				case Number:
					To.Number = From.Number;
					break;
				case Target:
					// What has died since is no difference any more.
					To.Target = Before.Target == After.Target ? To.Target : From.Target;
					break;
				case Entries:
					To.Entries = From.Entries;
					break;
				case Count:
					bThere ? To.Entries[Index].Count = From.Entries[Index].Count : 0;
					break;
				case Label:
					bThere ? To.Entries[Index].Label = From.Entries[Index].Label : 0;
					break;
			}
		}
	};

	struct FStepModel
	{
		std::vector<FChangeModel> Changes;
		std::vector<size_t> Spawned;
	};

	/** Small numbers out of one large one. */
	class FChoices
	{
	public:
		explicit FChoices(uint64_t InSeed) : Seed(InSeed) {}

		size_t operator()(size_t Range)
		{
			const uint64_t Chosen = Seed % Range;
			Seed = Seed / Range * 6364136223846793005ULL + 1442695040888963407ULL * Chosen;
			return Chosen;
		}

	private:
		uint64_t Seed;
	};

	/** The level and the model of it, worked on alike. */
	class FUndoModel
	{
	public:
		FUndoModel()
		{
			Spawn();
			Spawn();
		}

		void Work(uint64_t Seed)
		{
			FChoices Choose(Seed);
			Editor.World()->GetOutermost()->SetDirtyFlag(false);
			bDirty = false;
			switch (Choose(11))
			{
				case 0:
				case 1:
				case 2:
				case 3:
					DoStep(Choose, 0);
					break;
				case 4:
				case 5:
					Edit(Choose);
					break;
				case 6:
					DoStep(Choose, 1 + Choose(2));
					break;
				case 7:
					Spawn();
					Destroy(Choose(Actors.size()));
					break;
				case 8:
				case 9:
					Undo(Choose(8) != 0);
					break;
				default:
					Redo();
					break;
			}
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		void Compare() const
		{
			RC_ASSERT(Editor.World()->GetOutermost()->IsDirty() == bDirty);
			RC_ASSERT(GEditor->Trans->CanUndo() == (NumDone > 0));
			RC_ASSERT(GEditor->Trans->CanRedo() == (NumDone < Steps.size()));
			TArray<AActor*> Expected;
			for (const FActorModel& Model : Actors)
			{
				if (Model.bAlive && Model.bInLevel)
				{
					Expected.Add(Model.Actor);
				}
			}
			TArray<AActor*> Found;
			UGameplayStatics::GetAllActorsOfClass(Editor.World(), AActor::StaticClass(), Found);
			RC_ASSERT(Found == Expected);
			for (const FActorModel& Model : Actors)
			{
				if (Model.bAlive)
				{
					CompareActor(Model);
				}
			}
		}

	private:
		static FString LabelOf(int32 Label) { return Label == 0 ? FString() : FString::FromInt(Label); }
		AUndoActor* GetActor(int32 Index) const
		{
			return Index == NoActor ? nullptr : Actors[static_cast<size_t>(Index)].Actor;
		}

		void CompareActor(const FActorModel& Model) const
		{
			const AUndoActor& Actor = *Model.Actor;
			RC_ASSERT(IsValid(&Actor));
			RC_ASSERT(Actor.Number == Model.State.Number);
			RC_ASSERT(Actor.Target == GetActor(Model.State.Target));
			RC_ASSERT(static_cast<size_t>(Actor.Entries.Num()) == Model.State.Entries.size());
			for (int32 Index = 0; Index < Actor.Entries.Num(); ++Index)
			{
				const FEntryModel& Entry = Model.State.Entries[static_cast<size_t>(Index)];
				RC_ASSERT(Actor.Entries[Index].Count == Entry.Count);
				RC_ASSERT(Actor.Entries[Index].Label.Equals(LabelOf(Entry.Label)));
			}
		}

		size_t Spawn()
		{
			Actors.push_back({Editor.World()->SpawnActor<AUndoActor>(), {}});
			return Actors.size() - 1;
		}

		void Destroy(size_t Index)
		{
			FActorModel& Model = Actors[Index];
			if (Model.bAlive && Model.bInLevel)
			{
				Editor.World()->DestroyActor(Model.Actor);
				Die(Index);
			}
		}

		/** Nothing refers to what is dead. */
		void Die(size_t Index)
		{
			Actors[Index].bAlive = false;
			const auto Forget = [Index](FStateModel& State)
			{ State.Target = State.Target == static_cast<int32>(Index) ? NoActor : State.Target; };
			for (FActorModel& Model : Actors)
			{
				Forget(Model.State);
			}
			for (FStepModel& Step : Steps)
			{
				for (FChangeModel& Change : Step.Changes)
				{
					Forget(Change.Before);
					Forget(Change.After);
				}
			}
		}

		/** One change of an actor that is in the level, if there is any. */
		void Edit(FChoices& Choose)
		{
			FActorModel& Model = Actors[Choose(Actors.size())];
			const size_t Kind = Choose(6);
			const int32 Value = static_cast<int32>(Choose(3));
			if (!Model.bAlive || !Model.bInLevel)
			{
				return;
			}
			Model.Actor->Modify(false);
			std::vector<FEntryModel>& Entries = Model.State.Entries;
			const size_t Place = Entries.empty() ? 0 : Choose(Entries.size());
			const int32 Index = static_cast<int32>(Place);
			if (Kind == 0)
			{
				Model.Actor->Number = Model.State.Number = Value;
			}
			else if (Kind == 1)
			{
				const size_t Target = Choose(Actors.size());
				const bool bThere = Actors[Target].bAlive && Actors[Target].bInLevel;
				Model.State.Target = bThere ? static_cast<int32>(Target) : NoActor;
				Model.Actor->Target = GetActor(Model.State.Target);
			}
			else if (Kind == 2 || Entries.empty())
			{
				Entries.emplace_back();
				Model.Actor->Entries.Add(FUndoEntry());
			}
			else if (Kind == 3)
			{
				Entries.erase(Entries.begin() + Index);
				Model.Actor->Entries.RemoveAt(Index);
			}
			else if (Kind == 4)
			{
				Model.Actor->Entries[Index].Count = Entries[Place].Count = Value;
			}
			else
			{
				Entries[Place].Label = Value;
				Model.Actor->Entries[Index].Label = LabelOf(Value);
			}
		}

		void DoStep(FChoices& Choose, size_t NumSpawned)
		{
			const std::vector<FActorModel> Before = Actors;
			FStepModel Step;
			GEditor->BeginTransaction(FText());
			const size_t NumEdits = Choose(4);
			while (NumSpawned-- > 0)
			{
				Step.Spawned.push_back(Spawn());
			}
			for (size_t Done = 0; Done < NumEdits; ++Done)
			{
				Edit(Choose);
			}
			GEditor->EndTransaction();
			for (size_t Index = 0; Index < Before.size(); ++Index)
			{
				AddChanges(Index, Before[Index].State, Step);
			}
			bDirty = !Step.Changes.empty() || !Step.Spawned.empty();
			if (bDirty)
			{
				ForgetUndone({std::move(Step)});
				++NumDone;
			}
		}

		void AddChanges(size_t Index, const FStateModel& Before, FStepModel& Step) const
		{
			const FStateModel& After = Actors[Index].State;
			const auto Add = [&](bool bChanged, FChangeModel::EField Field, size_t Place)
			{
				if (bChanged)
				{
					Step.Changes.push_back({Index, Field, Place, Before, After});
				}
			};
			Add(Before.Number != After.Number, FChangeModel::Number, 0);
			Add(Before.Target != After.Target, FChangeModel::Target, 0);
			const bool bLength = Before.Entries.size() != After.Entries.size();
			Add(bLength, FChangeModel::Entries, 0);
			for (size_t Place = 0; !bLength && Place < After.Entries.size(); ++Place)
			{
				Add(Before.Entries[Place].Count != After.Entries[Place].Count, FChangeModel::Count, Place);
				Add(Before.Entries[Place].Label != After.Entries[Place].Label, FChangeModel::Label, Place);
			}
		}

		/** What comes in their place refers to no dead actor either. */
		void ForgetUndone(const std::vector<FStepModel>& Instead)
		{
			std::set<size_t> Dying;
			for (size_t Index = NumDone; Index < Steps.size(); ++Index)
			{
				Dying.insert(Steps[Index].Spawned.begin(), Steps[Index].Spawned.end());
			}
			Steps.resize(NumDone);
			Steps.insert(Steps.end(), Instead.begin(), Instead.end());
			for (const size_t Index : Dying)
			{
				Die(Index);
			}
		}

		void Apply(const FStepModel& Step, bool bUndo)
		{
			for (const FChangeModel& Change : Step.Changes)
			{
				FActorModel& Model = Actors[Change.Actor];
				if (Model.bAlive)
				{
					Change.Apply(Model.State, bUndo ? Change.Before : Change.After);
					bDirty = true;
				}
			}
			for (const size_t Index : Step.Spawned)
			{
				Actors[Index].bInLevel = !bUndo;
				bDirty = bDirty || Actors[Index].bAlive;
			}
		}

		void Undo(bool bCanRedo)
		{
			const bool bCan = NumDone > 0;
			if (bCan)
			{
				Apply(Steps[--NumDone], true);
				bCanRedo ? void() : ForgetUndone({});
			}
			RC_ASSERT(GEditor->UndoTransaction(bCanRedo) == bCan);
		}

		void Redo()
		{
			const bool bCan = NumDone < Steps.size();
			if (bCan)
			{
				Apply(Steps[NumDone++], false);
			}
			RC_ASSERT(GEditor->RedoTransaction() == bCan);
		}

		FTestEditor Editor;
		std::vector<FActorModel> Actors;
		std::vector<FStepModel> Steps;
		size_t NumDone = 0;
		bool bDirty = false;
	};
}

RC_GTEST_PROP(UTransactor, LeavesWhatAPlainModelExpects, (const std::vector<uint64_t>& Seeds))
{
	FUndoModel Model;
	for (const uint64_t Seed : Seeds)
	{
		Model.Work(Seed);
		Model.Compare();
	}
}

// The same for much longer than random lists are.
RC_GTEST_PROP(UTransactor, HoldsThroughALongDayOfWork, (uint64_t Seed))
{
	FUndoModel Model;
	for (int32 Done = 0; Done < 300; ++Done)
	{
		Seed = Seed * 6364136223846793005ULL + 1442695040888963407ULL;
		Model.Work(Seed >> 11);
		Model.Compare();
	}
}
