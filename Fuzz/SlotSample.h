// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class USaveGame;

/** What the fuzzer begins with. */
class FSlotSample
{
public:
	/** An object with a value of every kind, in arrays and structures too. */
	static USaveGame* Make();
};
