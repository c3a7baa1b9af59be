// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"

/** One failed `ensure`: the expression as written, the file as the repository names it, the line. */
struct FEnsureReport
{
	FString Expression;
	FString File;
	int32 Line = 0;
};

/** Stand-alone extra: lets the editor program and the tests hear of failed ensures. */
struct CORE_API FEnsureReports
{
	typedef TMulticastDelegate<void(const FEnsureReport&)> FOnReported;
	static FOnReported& OnReported();
};
