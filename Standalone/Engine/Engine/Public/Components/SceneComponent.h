// Copyright Corvane. MIT License.
#pragma once

#include "Components/ActorComponent.h"

#include "SceneComponent.generated.h"

/** A component with a place in the world. */
UCLASS()
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** Relative to the component that this one is attached to, thus to the world: nothing is attached here. */
	FVector GetRelativeLocation() const { return RelativeLocation; }
	FRotator GetRelativeRotation() const { return RelativeRotation; }
	void SetRelativeLocation(FVector NewLocation) { RelativeLocation = NewLocation; }
	/** Keeps the angles as they are. */
	void SetRelativeRotation(FRotator NewRotation) { RelativeRotation = NewRotation; }

private:
	UPROPERTY()
	FVector RelativeLocation;

	UPROPERTY()
	FRotator RelativeRotation;
};
