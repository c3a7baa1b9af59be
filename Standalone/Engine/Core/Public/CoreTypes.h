// Copyright Corvane. MIT License.
#pragma once

#include <cstddef>
#include <cstdint>

/** @file The engine's names for the fundamental types. TCHAR is UTF-16, as the engine chooses on Linux. */

typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef std::int64_t int64;
typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef std::uint64_t uint64;
typedef std::size_t SIZE_T;
typedef char ANSICHAR;
typedef char16_t WIDECHAR;
typedef char16_t TCHAR;

#define TEXT_PASTE(x) u##x
/** A literal of TCHARs. */
#define TEXT(x) TEXT_PASTE(x)

#define FORCEINLINE inline
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)

#ifndef WITH_EDITOR
/** This engine exists for editor modules only. */
#define WITH_EDITOR 1
#endif

/** What searches return when nothing was found. */
enum
{
	INDEX_NONE = -1
};
constexpr int32 MAX_int32 = 0x7fffffff;
constexpr uint32 MAX_uint32 = 0xffffffff;
