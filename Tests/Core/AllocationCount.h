// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** How often this program and its libraries have asked for memory with new. Counts in release builds only. */
struct FAllocationCount
{
	static int64 Get();
};
