// Copyright Corvane. MIT License.
#include <cstdlib>
#include <new>

#include "AllocationCount.h"

#ifndef __SANITIZE_ADDRESS__
namespace
{
	int64 NumAllocations = 0;
	int64 NumLive = 0;
}

int64 FAllocationCount::Get()
{
	return NumAllocations;
}

int64 FAllocationCount::GetLive()
{
	return NumLive;
}

void* operator new(std::size_t Size)
{
	++NumAllocations;
	++NumLive;
	void* const Memory = std::malloc(Size == 0 ? 1 : Size);
	if (Memory == nullptr)
	{
		throw std::bad_alloc();
	}
	return Memory;
}

void operator delete(void* Memory) noexcept
{
	NumLive -= Memory != nullptr ? 1 : 0;
	std::free(Memory);
}

void operator delete(void* Memory, std::size_t) noexcept
{
	NumLive -= Memory != nullptr ? 1 : 0;
	std::free(Memory);
}
#endif
