// Copyright Corvane. MIT License.
#include "Kismet/GameplayStatics.h"

#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "GameFramework/SaveGame.h"
#include "PlatformFeatures.h"
#include "SaveGameArchive.h"
#include "SaveGameSystem.h"
#include "UObject/Package.h"

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

USaveGame* UGameplayStatics::CreateSaveGameObject(TSubclassOf<USaveGame> SaveGameClass)
{
	// The base itself is abstract, too.
	UClass* Class = SaveGameClass.Get();
	const bool bUsable = Class && !Class->HasAnyClassFlags(CLASS_Abstract);
	return bUsable ? NewObject<USaveGame>(GetTransientPackage(), Class) : nullptr;
}

bool UGameplayStatics::SaveGameToMemory(USaveGame* SaveGameObject, TArray<uint8>& OutSaveData)
{
	if (!SaveGameObject)
	{
		return false;
	}
	OutSaveData.Reset();
	FSaveGameArchive Archive(OutSaveData, false);
	FString ClassName = SaveGameObject->GetClass()->GetPathName();
	return Archive.SerializeString(ClassName) && Archive.SerializeMembers(SaveGameObject->GetClass(), SaveGameObject);
}

USaveGame* UGameplayStatics::LoadGameFromMemory(const TArray<uint8>& InSaveData)
{
	TArray<uint8> Bytes = InSaveData;
	FSaveGameArchive Archive(Bytes, true);
	FString ClassName;
	// A longer name is fatal in the name table.
	if (!Archive.SerializeString(ClassName) || ClassName.Len() >= NAME_SIZE)
	{
		return nullptr;
	}
	UClass* Class = FindObject<UClass>(nullptr, *ClassName);
	USaveGame* Object = CreateSaveGameObject(Class);
	return Object && Archive.SerializeMembers(Class, Object) && Archive.IsAtEnd() ? Object : nullptr;
}

bool UGameplayStatics::SaveGameToSlot(USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex)
{
	ISaveGameSystem* System = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	TArray<uint8> Bytes;
	return System && !SlotName.IsEmpty() && SaveGameToMemory(SaveGameObject, Bytes) &&
		System->SaveGame(false, *SlotName, UserIndex, Bytes);
}

USaveGame* UGameplayStatics::LoadGameFromSlot(const FString& SlotName, const int32 UserIndex)
{
	ISaveGameSystem* System = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	TArray<uint8> Bytes;
	const bool bLoaded = System && !SlotName.IsEmpty() && System->LoadGame(false, *SlotName, UserIndex, Bytes);
	return bLoaded ? LoadGameFromMemory(Bytes) : nullptr;
}
