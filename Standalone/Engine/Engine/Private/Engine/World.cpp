// Copyright Corvane. MIT License.
#include "Engine/World.h"

#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "Misc/ITransaction.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
	/** A package that no object was ever in, named as the engine names those of levels that were not saved yet. */
	UPackage* MakeWorldPackage()
	{
		static int32 NumMade = 0;
		FString Name;
		do
		{
			Name = FString::Printf(TEXT("/Temp/Untitled_%d"), NumMade++);
		} while (FindPackage(nullptr, *Name));
		return CreatePackage(*Name);
	}

	/** Whether an actor of the class can be placed at all. */
	bool CanSpawn(const UClass* Class)
	{
		return Class && Class->IsChildOf(AActor::StaticClass()) && !Class->HasAnyClassFlags(CLASS_Abstract);
	}
}

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool /*bInformEngineOfWorld*/)
{
	UWorld* World = NewObject<UWorld>(MakeWorldPackage(), FName("Untitled"), RF_Transactional);
	World->WorldType = InWorldType;
	World->PersistentLevel = NewObject<ULevel>(World, FName("PersistentLevel"), RF_Transactional);
	World->AddToRoot();
	return World;
}

void UWorld::DestroyWorld(bool /*bInformEngineOfWorld*/)
{
	TArray<UObject*> Parts;
	GetObjectsWithOuter(this, Parts);
	for (UObject* Part : Parts)
	{
		Part->MarkPendingKill();
	}
	RemoveFromRoot();
	MarkPendingKill();
}

UWorld* UWorld::GetWorld() const
{
	return const_cast<UWorld*>(this);
}

AActor* UWorld::SpawnActor(
	UClass* InClass, FVector const* Location, FRotator const* Rotation, const FActorSpawnParameters& SpawnParameters)
{
	if (!CanSpawn(InClass))
	{
		return nullptr;
	}
	const FName Name = SpawnParameters.Name;
	if (!Name.IsNone() && FindObject<UObject>(PersistentLevel, *Name.ToString()))
	{
		checkf(SpawnParameters.NameMode != FActorSpawnParameters::ESpawnActorNameMode::Required_Fatal,
			TEXT("An actor cannot be spawned with the name '%s': it is taken in %s"), *Name.ToString(),
			*PersistentLevel->GetPathName());
		return nullptr;
	}
	AActor* Actor = NewObject<AActor>(PersistentLevel, InClass, Name, SpawnParameters.ObjectFlags);
	PersistentLevel->Actors.Add(Actor);
	Actor->SetActorLocation(Location ? *Location : FVector::ZeroVector);
	Actor->SetActorRotation(Rotation ? *Rotation : FRotator::ZeroRotator);
	if (GUndo && Actor->HasAnyFlags(RF_Transactional))
	{
		GUndo->SaveCreated(Actor);
	}
	return Actor;
}

bool UWorld::DestroyActor(AActor* Actor)
{
	const int32 Index = IsValid(Actor) ? PersistentLevel->Actors.Find(Actor) : static_cast<int32>(INDEX_NONE);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	// The others keep their places, so that nobody who walks through them is thrown off course.
	PersistentLevel->Actors[Index] = nullptr;
	TArray<UActorComponent*> Components;
	Actor->GetComponents(Components);
	for (UActorComponent* Component : Components)
	{
		Component->MarkPendingKill();
	}
	Actor->MarkPendingKill();
	return true;
}
