// Copyright Corvane. MIT License.
#include "Kismet/GameplayStatics.h"

#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

void UGameplayStatics::GetAllActorsOfClass(
	const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors)
{
	OutActors.Reset();
	const UWorld* World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
	const UClass* Class = ActorClass.Get();
	if (!World || !Class)
	{
		return;
	}
	for (AActor* Actor : World->PersistentLevel->Actors)
	{
		if (IsValid(Actor) && Actor->IsA(Class))
		{
			OutActors.Add(Actor);
		}
	}
}
