// Copyright Corvane. MIT License.
#include "ObjectTable.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define WITH_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITH_ADDRESS_SANITIZER 1
#endif
#endif
#ifdef WITH_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace
{
	struct FDeadMemory
	{
		void* Block;
		SIZE_T Size;
		SIZE_T Alignment;
	};

#ifdef WITH_ADDRESS_SANITIZER
	/** So many dead objects stay poisoned; enough to catch a pointer that outlives a collection or two. */
	const SIZE_T MaxDeadBlocks = 1024;
	std::deque<FDeadMemory>* DeadMemory = nullptr;
#endif

	void Free(const FDeadMemory& Dead)
	{
		::operator delete(Dead.Block, std::align_val_t(Dead.Alignment));
	}

	void Bury(const FDeadMemory& Dead)
	{
#ifdef WITH_ADDRESS_SANITIZER
		if (!DeadMemory)
		{
			DeadMemory = new std::deque<FDeadMemory>();
		}
		ASAN_POISON_MEMORY_REGION(Dead.Block, Dead.Size);
		DeadMemory->push_back(Dead);
		if (DeadMemory->size() > MaxDeadBlocks)
		{
			ASAN_UNPOISON_MEMORY_REGION(DeadMemory->front().Block, DeadMemory->front().Size);
			Free(DeadMemory->front());
			DeadMemory->pop_front();
		}
#else
		Free(Dead);
#endif
	}
}

FObjectTable& FObjectTable::Get()
{
	// Never destroyed: objects may be reached until the very end of the program.
	static FObjectTable* const Table = new FObjectTable();
	return *Table;
}

void* FObjectTable::Allocate(SIZE_T Size, SIZE_T Alignment)
{
	void* const Block = ::operator new(Size, std::align_val_t(Alignment));
	std::memset(Block, 0, Size);
	return Block;
}

int32 FObjectTable::Add(UObject* Object)
{
	if (FreeIndices.empty())
	{
		FreeIndices.push_back(static_cast<int32>(Slots.size()));
		Slots.emplace_back();
	}
	const int32 Index = FreeIndices.back();
	FreeIndices.pop_back();
	FSlot& Slot = Slots[static_cast<SIZE_T>(Index)];
	Slot = FSlot();
	Slot.Object = Object;
	Slot.SerialNumber = ++LastSerialNumber;
	return Index;
}

void FObjectTable::AddName(UObject* Object)
{
	UObject*& Place = Insides[Object->OuterPrivate].ByName[Object->NamePrivate];
	check(Place == nullptr);
	Place = Object;
}

void FObjectTable::RemoveName(UObject* Object)
{
	const auto Inside = Insides.find(Object->OuterPrivate);
	if (Inside != Insides.end())
	{
		const auto Named = Inside->second.ByName.find(Object->NamePrivate);
		if (Named != Inside->second.ByName.end() && Named->second == Object)
		{
			Inside->second.ByName.erase(Named);
		}
	}
	// Another object may come to lie at the same address: it must not inherit this one's numbers.
	Insides.erase(Object);
}

void FObjectTable::Destroy(UObject* Object)
{
	const int32 Index = Object->InternalIndex;
	FSlot& Slot = Slots[static_cast<SIZE_T>(Index)];
	const FDeadMemory Dead{Object, Slot.Size, Slot.Alignment};
	Object->~UObject();
	Slots[static_cast<SIZE_T>(Index)] = FSlot();
	FreeIndices.push_back(Index);
	Bury(Dead);
}

const FObjectTable::FSlot* FObjectTable::FindSlot(int32 Index, int32 SerialNumber) const
{
	if (Index < 0 || static_cast<SIZE_T>(Index) >= Slots.size())
	{
		return nullptr;
	}
	const FSlot& Slot = Slots[static_cast<SIZE_T>(Index)];
	return Slot.Object && Slot.SerialNumber == SerialNumber ? &Slot : nullptr;
}

UObject* FObjectTable::Find(const UObject* Outer, FName Name) const
{
	const auto Inside = Insides.find(Outer);
	if (Inside == Insides.end())
	{
		return nullptr;
	}
	const auto Named = Inside->second.ByName.find(Name);
	return Named == Inside->second.ByName.end() ? nullptr : Named->second;
}

std::vector<UObject*> FObjectTable::FindInside(const UObject* Outer) const
{
	std::vector<UObject*> Result;
	const auto Inside = Insides.find(Outer);
	if (Inside != Insides.end())
	{
		for (const auto& Named : Inside->second.ByName)
		{
			Result.push_back(Named.second);
		}
	}
	// Serial numbers tell the order of making; the hash map's order would differ from run to run.
	std::sort(Result.begin(), Result.end(),
		[this](const UObject* A, const UObject* B)
		{
			return Slots[static_cast<SIZE_T>(A->InternalIndex)].SerialNumber <
				Slots[static_cast<SIZE_T>(B->InternalIndex)].SerialNumber;
		});
	return Result;
}

UObject* FObjectTable::FindIf(const std::function<bool(UObject*)>& Visit) const
{
	for (const FSlot& Slot : Slots)
	{
		if (Slot.Object && Visit(Slot.Object))
		{
			return Slot.Object;
		}
	}
	return nullptr;
}

int32 FObjectTable::TakeNumber(const UObject* Outer, FName BaseName)
{
	return ++Insides[Outer].LastNumbers[BaseName];
}

void FObjectTable::ReleaseDeadMemory()
{
#ifdef WITH_ADDRESS_SANITIZER
	if (DeadMemory)
	{
		for (const FDeadMemory& Dead : *DeadMemory)
		{
			ASAN_UNPOISON_MEMORY_REGION(Dead.Block, Dead.Size);
			Free(Dead);
		}
		delete DeadMemory;
		DeadMemory = nullptr;
	}
#endif
}
