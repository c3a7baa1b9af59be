// Copyright Corvane. MIT License.
#include "Components/ActorComponent.h"

#include "GameFramework/Actor.h"

AActor* UActorComponent::GetOwner() const
{
	return GetTypedOuter<AActor>();
}

UWorld* UActorComponent::GetWorld() const
{
	const AActor* Owner = GetOwner();
	return Owner ? Owner->GetWorld() : nullptr;
}

void UActorComponent::PostInitProperties()
{
	Super::PostInitProperties();
	if (AActor* Owner = GetOwner())
	{
		Owner->OwnedComponents.Add(this);
	}
}
