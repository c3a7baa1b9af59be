// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"

#include "TestActors.generated.h"

/** Becomes known when a test first asks for its class. */
UCLASS()
class ALateActor : public AActor
{
	GENERATED_BODY()
};

/** Of which there can be none. */
UCLASS(Abstract)
class AAbstractActor : public AActor
{
	GENERATED_BODY()
};
