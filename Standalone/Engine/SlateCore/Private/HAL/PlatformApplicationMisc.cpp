// Copyright Corvane. MIT License.
#include "HAL/PlatformApplicationMisc.h"

namespace
{
	FString& Clipboard()
	{
		static FString Content;
		return Content;
	}
}

void FPlatformApplicationMisc::ClipboardCopy(const TCHAR* Str)
{
	Clipboard() = FString(Str);
}

void FPlatformApplicationMisc::ClipboardPaste(FString& Dest)
{
	Dest = Clipboard();
}
