// Copyright Corvane. MIT License.
#pragma once

#include "Components/SceneComponent.h"
#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"

#include "Actor.generated.h"

class ULevel;

/** Something that stands in a level. Where it stands is where its root component is; without one it is at zero. */
UCLASS()
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	USceneComponent* GetRootComponent() const { return RootComponent; }

	FVector GetActorLocation() const;
	/** The angles as they were set, not brought into a range. */
	FRotator GetActorRotation() const;

	/** There is nothing to hit: sweeping changes nothing, the hit result stays as it is. @return false without root. */
	bool SetActorLocation(const FVector& NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr,
		ETeleportType Teleport = ETeleportType::None);
	/** @return false without root. */
	bool SetActorRotation(FRotator NewRotation, ETeleportType Teleport = ETeleportType::None);

	/** The level that the actor stands in; null for a template. */
	ULevel* GetLevel() const;
	UWorld* GetWorld() const override;

	/** The actor's components in the order of their making. */
	void GetComponents(TArray<UActorComponent*>& OutComponents) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	UPROPERTY()
	USceneComponent* RootComponent = nullptr;

private:
	friend class UActorComponent;

	/** Not reflected: the template's list must not be copied over that of its instance. */
	TArray<UActorComponent*> OwnedComponents;
};
