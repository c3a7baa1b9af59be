// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Level.generated.h"

class AActor;

/** Holds a world's actors. */
UCLASS()
class ENGINE_API ULevel : public UObject
{
	GENERATED_BODY()

public:
	/** Broadcast by whoever changed a level without the editor's own means, so that its views follow. */
	static FSimpleMulticastDelegate LevelDirtiedEvent;

	UWorld* GetWorld() const override;

	/** In the order of spawning. A destroyed actor leaves a null in its place. */
	UPROPERTY()
	TArray<AActor*> Actors;
};
