// Copyright Corvane. MIT License.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "Misc/AssertionMacros.h"

#include "Containers/UnrealString.h"
#include "Standalone/EnsureReports.h"

namespace
{
	/** Tells scripts a fatal check from every other way to end. */
	constexpr int FatalExitStatus = 3;

	void PrintLine(
		const ANSICHAR* What, const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const FString& Message)
	{
		std::fflush(nullptr);
		std::fprintf(stderr, "%s: %s [File:%s] [Line: %d] \n%s%s", What, Expression, File, Line,
			TCHAR_TO_UTF8(*Message), Message.IsEmpty() ? "" : "\n");
		std::fflush(stderr);
	}
}

void FDebug::CheckVerifyFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Message, ...)
{
	va_list Arguments;
	va_start(Arguments, Message);
	const FString Text = Message ? FString::PrintfV(Message, Arguments) : FString();
	va_end(Arguments);
	PrintLine("Assertion failed", Expression, File, Line, Text);
	std::_Exit(FatalExitStatus);
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Message, ...)
{
	va_list Arguments;
	va_start(Arguments, Message);
	const FString Text = Message ? FString::PrintfV(Message, Arguments) : FString();
	va_end(Arguments);
	PrintLine("Ensure condition failed", Expression, File, Line, Text);
	FEnsureReport Report;
	Report.Expression = UTF8_TO_TCHAR(Expression);
	Report.File = UTF8_TO_TCHAR(File);
	Report.Line = Line;
	FEnsureReports::OnReported().Broadcast(Report);
	return false;
}

FEnsureReports::FOnReported& FEnsureReports::OnReported()
{
	static FOnReported Instance;
	return Instance;
}
