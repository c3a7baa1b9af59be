// Copyright Corvane. MIT License.
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "Templates/SubclassOf.h"

#include "GameplayStatics.generated.h"

class AActor;

/** Functions for anybody who has an object of a world. */
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * All actors of the class, or of one derived from it, in the world of WorldContextObject, in the order of spawning.
	 * OutActors is emptied first; it stays empty without world or class.
	 */
	static void GetAllActorsOfClass(
		const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);
};
