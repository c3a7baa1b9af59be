// Copyright Corvane. MIT License.
#pragma once

#include "Components/SceneCaptureComponent2D.h"
#include "GameFramework/Actor.h"

#include "TestActors.generated.h"

/** An actor with a place in the world. */
UCLASS()
class ATestPlacedActor : public AActor
{
	GENERATED_BODY()

public:
	ATestPlacedActor() { RootComponent = CreateDefaultSubobject<USceneComponent>(FName("Root")); }
};

/** One of a derived class, with two components of which one is referred to by nobody. */
UCLASS()
class ATestCaptureActor : public ATestPlacedActor
{
	GENERATED_BODY()

public:
	ATestCaptureActor()
	{
		CreateDefaultSubobject<USceneComponent>(FName("Loose"));
		Capture = CreateDefaultSubobject<USceneCaptureComponent2D>(FName("Capture"));
	}

	UPROPERTY()
	USceneCaptureComponent2D* Capture;
};

/** One that only others derive from. */
UCLASS(Abstract)
class ATestAbstractActor : public AActor
{
	GENERATED_BODY()
};
