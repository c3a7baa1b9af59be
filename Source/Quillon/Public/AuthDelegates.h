// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/** What the plugin's licence and release service announces. */
struct QUILLON_API AuthDelegates
{
	/** A newer release of the plugin is available: its version as text to show, and the address of its download. */
	static TMulticastDelegate<void(FString, FString)> OnUpgradeAvailable;
};
