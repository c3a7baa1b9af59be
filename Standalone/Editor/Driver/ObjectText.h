// Copyright Corvane. MIT License.
#pragma once

#include "Driver/Request.h"

#include "CoreMinimal.h"

class UObject;

/** What requests and answers call an object: an asset by its path, an actor of the open level by its name. */
class FObjectText
{
public:
	/** @return null for no object; the path name of what is neither asset nor actor. */
	static FAnswer Describe(const UObject* Object);

	/** @return null if nothing is called so. Letter case does not matter, as everywhere in the engine's names. */
	static UObject* Find(const FString& Text);
};
