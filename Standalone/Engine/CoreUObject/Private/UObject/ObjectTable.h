// Copyright Corvane. MIT License.
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "UObject/Object.h"

/**
 * All living objects: by index, for weak pointers and the collector, and by outer and name. It also hands out their
 * memory. Indices are used again, serial numbers are not.
 */
class FObjectTable
{
public:
	struct FSlot
	{
		UObject* Object = nullptr;
		int32 SerialNumber = 0;
		SIZE_T Size = 0;
		SIZE_T Alignment = 0;
		/** For the collector, while it runs. */
		bool bReachable = false;
		/** The collector has found that it must die. */
		bool bDying = false;
	};

	static FObjectTable& Get();

	/** Zeroed memory for an object. */
	static void* Allocate(SIZE_T Size, SIZE_T Alignment);

	/** Called by UObject's constructor. @return the object's index. */
	int32 Add(UObject* Object);
	/** Takes the object out of the names, so that nothing finds it any more. */
	void RemoveName(UObject* Object);
	void AddName(UObject* Object);
	/** Runs the destructor and gives the memory back. */
	void Destroy(UObject* Object);
	void SetLayout(UObject* Object, SIZE_T Size, SIZE_T Alignment)
	{
		GetSlot(Object).Size = Size;
		GetSlot(Object).Alignment = Alignment;
	}

	std::vector<FSlot>& GetSlots() { return Slots; }
	FSlot& GetSlot(const UObject* Object) { return Slots[static_cast<SIZE_T>(Object->InternalIndex)]; }
	/** Null unless there is a living object with that index and serial number. */
	const FSlot* FindSlot(int32 Index, int32 SerialNumber) const;

	/** The object of that name directly in Outer (null: a package), or null. */
	UObject* Find(const UObject* Outer, FName Name) const;
	/** What lies directly in Outer, in the order of making. */
	std::vector<UObject*> FindInside(const UObject* Outer) const;
	/** Calls Visit for each object, in the order of indices, until it returns true. */
	UObject* FindIf(const std::function<bool(UObject*)>& Visit) const;
	/** The next number for names of that base within Outer: 1, 2, 3 and so on (0 would be a name without number). */
	int32 TakeNumber(const UObject* Outer, FName BaseName);

	/** Gives back the memory of dead objects that is still held to catch wrong uses. */
	static void ReleaseDeadMemory();

private:
	struct FNameHash
	{
		SIZE_T operator()(const FName& Name) const { return GetTypeHash(Name); }
	};
	/** What lies in one outer. */
	struct FInside
	{
		std::unordered_map<FName, UObject*, FNameHash> ByName;
		std::unordered_map<FName, int32, FNameHash> LastNumbers;
	};

	std::vector<FSlot> Slots;
	std::vector<int32> FreeIndices;
	int32 LastSerialNumber = 0;
	std::unordered_map<const UObject*, FInside> Insides;
};
