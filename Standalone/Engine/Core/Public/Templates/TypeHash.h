// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

#include <functional>

/** Hashes of the fundamental types; a class offers its own overload beside itself. */
inline uint32 GetTypeHash(int32 Value)
{
	return static_cast<uint32>(std::hash<int32>()(Value));
}
inline uint32 GetTypeHash(uint32 Value)
{
	return static_cast<uint32>(std::hash<uint32>()(Value));
}
inline uint32 GetTypeHash(const void* Value)
{
	return static_cast<uint32>(std::hash<const void*>()(Value));
}
