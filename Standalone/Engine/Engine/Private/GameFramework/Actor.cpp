// Copyright Corvane. MIT License.
#include "GameFramework/Actor.h"

#include "Engine/Level.h"

FVector AActor::GetActorLocation() const
{
	return RootComponent ? RootComponent->GetRelativeLocation() : FVector::ZeroVector;
}

FRotator AActor::GetActorRotation() const
{
	return RootComponent ? RootComponent->GetRelativeRotation() : FRotator::ZeroRotator;
}

bool AActor::SetActorLocation(
	const FVector& NewLocation, bool /*bSweep*/, FHitResult* /*OutSweepHitResult*/, ETeleportType /*Teleport*/)
{
	if (RootComponent)
	{
		RootComponent->SetRelativeLocation(NewLocation);
	}
	return RootComponent != nullptr;
}

bool AActor::SetActorRotation(FRotator NewRotation, ETeleportType /*Teleport*/)
{
	if (RootComponent)
	{
		RootComponent->SetRelativeRotation(NewRotation);
	}
	return RootComponent != nullptr;
}

ULevel* AActor::GetLevel() const
{
	return GetTypedOuter<ULevel>();
}

UWorld* AActor::GetWorld() const
{
	const ULevel* Level = GetLevel();
	return Level ? Level->GetWorld() : nullptr;
}

void AActor::GetComponents(TArray<UActorComponent*>& OutComponents) const
{
	OutComponents.Reset();
	for (UActorComponent* Component : OwnedComponents)
	{
		if (IsValid(Component))
		{
			OutComponents.Add(Component);
		}
	}
}

void AActor::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	AActor* This = static_cast<AActor*>(InThis);
	Collector.AddReferencedObjects(This->OwnedComponents, This);
	Super::AddReferencedObjects(InThis, Collector);
}
