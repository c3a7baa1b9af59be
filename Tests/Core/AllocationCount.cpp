// Copyright Corvane. MIT License.
#include <cstdlib>
#include <new>

#include "AllocationCount.h"

// Not in debug builds: the sanitizers bring their own new.
#ifdef NDEBUG
namespace
{
	int64 NumAllocations = 0;
}

int64 FAllocationCount::Get()
{
	return NumAllocations;
}

void* operator new(std::size_t Size)
{
	++NumAllocations;
	void* const Memory = std::malloc(Size == 0 ? 1 : Size);
	if (Memory == nullptr)
	{
		throw std::bad_alloc();
	}
	return Memory;
}

void operator delete(void* Memory) noexcept
{
	std::free(Memory);
}

void operator delete(void* Memory, std::size_t) noexcept
{
	std::free(Memory);
}
#endif
