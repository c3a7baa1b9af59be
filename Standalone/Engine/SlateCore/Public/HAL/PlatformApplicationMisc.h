// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"

/** The clipboard. This one belongs to the process: no test or recording may touch the machine's own. */
struct SLATECORE_API FPlatformApplicationMisc
{
	static void ClipboardCopy(const TCHAR* Str);
	/** Dest becomes what was copied last, empty when nothing was. */
	static void ClipboardPaste(FString& Dest);
};
