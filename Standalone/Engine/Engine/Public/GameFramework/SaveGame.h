// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "SaveGame.generated.h"

/** The base of what is kept in a save slot: all reflected properties of the derived class. */
UCLASS(Abstract)
class ENGINE_API USaveGame : public UObject
{
	GENERATED_BODY()
};
