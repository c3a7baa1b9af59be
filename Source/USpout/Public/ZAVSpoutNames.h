// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/**
 * Which Spout senders are active on the machine.
 *
 * REFERENCE MODULE: this one does not talk to Spout; the names are those that were set. A product's own module asks
 * Spout at each call.
 */
class USPOUT_API ZAVSpoutNames
{
public:
	/** The names of the senders that are active at the moment of the call; empty when there are none. */
	static TArray<FString> GetActiveSenderNames();

	/** Only in the reference module: what GetActiveSenderNames returns from now on, in this order. */
	static void SetActiveSenderNames(const TArray<FString>& Names);
};
