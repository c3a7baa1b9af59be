// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/**
 * Where names stand in a list, for many names one after the other. Names are compared exactly, letter case included.
 *
 * Each name is first expected beside the one before: names that come in the list's order, or in the reverse of it, cost
 * one comparison each. The first few that do not are looked for through the whole list, after that in a table, so that
 * any order takes time in proportion. The list may grow at its end meanwhile, and must not change otherwise.
 */
template <typename GetNameType>
class TExactNameSearch
{
public:
	/**
	 * @param InGetName gives the name at an index, by a reference that stays good while the list grows.
	 * @param InFirst where to begin: what is before it does not count.
	 */
	TExactNameSearch(const GetNameType& InGetName, int32 InFirst)
		: GetName(InGetName), First(InFirst), Last(InFirst - 1), NumInTable(InFirst)
	{}

	/** @param Num the length of the list now. @return where the name stands, or INDEX_NONE. */
	int32 Find(const FString& Name, int32 Num)
	{
		// Straight on, over a gap of one, or back.
		for (const int32 Index : {Last + Step, Last + 2 * Step, Last - Step})
		{
			if (Index >= First && Index < Num && IsAt(Index, Name))
			{
				Step = Index < Last ? -1 : 1;
				Last = Index;
				return Index;
			}
		}
		const int32 Found = NumScans < MaxScans ? Scan(Name, Num) : LookUp(Name, Num);
		Last = Found == INDEX_NONE ? Last : Found;
		return Found;
	}

private:
	bool IsAt(int32 Index, const FString& Name) const
	{
		return GetName(Index).Equals(Name, ESearchCase::CaseSensitive);
	}
	int32 Scan(const FString& Name, int32 Num)
	{
		++NumScans;
		for (int32 Index = First; Index < Num; ++Index)
		{
			if (IsAt(Index, Name))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	int32 LookUp(const FString& Name, int32 Num)
	{
		if (Slots.Num() <= 2 * Num)
		{
			MakeTable(Num);
		}
		for (; NumInTable < Num; ++NumInTable)
		{
			Slots[FindSlot(GetName(NumInTable))] = NumInTable + 1;
		}
		return Slots[FindSlot(Name)] - 1;
	}
	/** An empty table that is at most half full with twice as many. Never without an empty place. */
	void MakeTable(int32 Num)
	{
		int32 NumSlots = 1;
		while (NumSlots < 4 * Num)
		{
			NumSlots *= 2;
		}
		Slots.Reset();
		Slots.SetNum(NumSlots);
		NumInTable = First;
	}
	/** Where the name is in the table, or the empty slot where it would be. */
	int32 FindSlot(const FString& Name) const
	{
		const int32 Mask = Slots.Num() - 1;
		int32 Slot = static_cast<int32>(Hash(Name)) & Mask;
		while (Slots[Slot] != 0 && !IsAt(Slots[Slot] - 1, Name))
		{
			Slot = (Slot + 1) & Mask;
		}
		return Slot;
	}
	/** FNV-1a. FString's own hash would put all spellings of a name that differ in letter case into one place. */
	static uint32 Hash(const FString& Name)
	{
		uint32 Result = 2166136261u;
		for (const TCHAR* Unit = *Name; Unit != *Name + Name.Len(); ++Unit)
		{
			Result = (Result ^ static_cast<uint32>(*Unit)) * 16777619u;
		}
		return Result;
	}

	/** Up to so many names are looked for through the whole list: that is quicker than making the table. */
	enum : int32
	{
		MaxScans = 4
	};

	const GetNameType GetName;
	const int32 First;
	/** Where the last name was found, and in which direction the names seem to go. */
	int32 Last;
	int32 Step = 1;
	int32 NumScans = 0;
	/** A hash table of the names in the list up to NumInTable, as their index and one; 0 is empty. Made when needed. */
	TArray<int32> Slots;
	int32 NumInTable;
};
