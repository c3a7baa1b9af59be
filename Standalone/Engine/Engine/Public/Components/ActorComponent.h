// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "ActorComponent.generated.h"

class AActor;

/** A part of an actor. Whoever holds one in a reflected member has an instance of his own. */
UCLASS(Abstract, DefaultToInstanced)
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	/** The actor that the component lies in, or null. */
	AActor* GetOwner() const;
	UWorld* GetWorld() const override;

	void PostInitProperties() override;
};
