// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/**
 * Where failed assertions go. `check` is fatal: it prints the engine's line on standard error and ends the process with
 * exit status 3. `ensure` reports once per call site and goes on.
 *
 * These macros break third-party headers that use the same words: include those first.
 */
struct CORE_API FDebug
{
	/** Prints the fatal line and ends the process. Message may be null. */
	[[noreturn]] static void CheckVerifyFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Message, ...);
	/** Prints the ensure's line and tells the listeners of FEnsureReports. Always false, so that it can end a
	 * condition. */
	static bool EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Message, ...);
};

#define check(expr) \
	do \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__, nullptr); \
		} \
	} while (false)
#define checkf(expr, format, ...) \
	do \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__, format, ##__VA_ARGS__); \
		} \
	} while (false)
#define verify(expr) check(expr)

#define UE_ENSURE_IMPLEMENTATION(bAlways, expr, ...) \
	(LIKELY(!!(expr)) || ([&]() -> bool { \
		static bool bReported = false; \
		if (bReported && !(bAlways)) \
		{ \
			return false; \
		} \
		bReported = true; \
		return FDebug::EnsureFailed(#expr, __FILE__, __LINE__, ##__VA_ARGS__); \
	}()))
#define ensure(expr) UE_ENSURE_IMPLEMENTATION(false, expr, nullptr)
#define ensureMsgf(expr, ...) UE_ENSURE_IMPLEMENTATION(false, expr, __VA_ARGS__)
