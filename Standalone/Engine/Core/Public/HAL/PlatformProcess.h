// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"

/** What the operating system does for the engine's process. */
struct CORE_API FPlatformProcess
{
	/**
	 * Opens an address in the user's browser, unless FCoreDelegates::ShouldLaunchUrl says no. What FAddressOpener does
	 * not allow is never passed on. Parms means nothing to the system's opener.
	 * @param Error why the address was not opened, left alone if it was. If null, that goes to standard error, but for
	 * a no of the delegate.
	 */
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);
};
