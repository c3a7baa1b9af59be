// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"

/**
 * The rule by which the stand-alone engine opens addresses: pages of the web, nothing that could start a program or
 * show a local file.
 */
class CORE_API FAddressOpener
{
public:
	/**
	 * Whether an address may be passed on: http or https in whatever case, "://", then a host, and nowhere a blank, a
	 * control character or another one that can't be seen.
	 * @param OutReason may be null; else what is wrong with an address that may not.
	 */
	static bool IsAllowed(const FString& Address, FString* OutReason = nullptr);
};
