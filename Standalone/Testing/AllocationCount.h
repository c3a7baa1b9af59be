// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/**
 * Counts what this program and its libraries take with new and give back. A program that links this has its own
 * operator new. Under the address sanitizer, which brings its own, there is nothing to ask.
 */
struct FAllocationCount
{
#ifndef __SANITIZE_ADDRESS__
	/** How often memory was taken. */
	static int64 Get();
	/** Blocks that were taken and not given back. */
	static int64 GetLive();
#endif
};
