// Copyright Corvane. MIT License.
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "Templates/SubclassOf.h"

#include "GameplayStatics.generated.h"

class AActor;
class USaveGame;

/** Functions for anybody who has an object of a world. */
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * All actors of the class, or of one derived from it, in the world of WorldContextObject, in the order of spawning.
	 * OutActors is emptied first; it stays empty without world or class.
	 */
	static void GetAllActorsOfClass(
		const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);

	/** An object with the class's defaults, to be filled and saved; null for no class and for an abstract one. */
	static USaveGame* CreateSaveGameObject(TSubclassOf<USaveGame> SaveGameClass);

	/**
	 * Puts the object's class and its reflected properties into OutSaveData, but for transient ones and references to
	 * objects.
	 * @return false for no object, and for values that could not be read again: names that are too long, structures
	 * that lie too deep in each other.
	 */
	static bool SaveGameToMemory(USaveGame* SaveGameObject, TArray<uint8>& OutSaveData);

	/**
	 * A new object of the class and with the values that were saved. Of a member that the class no longer has, or has
	 * with another type, nothing is read; one that was not saved keeps its default.
	 * @return null for bytes that are no saved object, whole and of a class that there is.
	 */
	static USaveGame* LoadGameFromMemory(const TArray<uint8>& InSaveData);

	/** @return false if the object can't be saved, the slot has no name, or the platform does not keep it. */
	static bool SaveGameToSlot(USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex);

	/** @return null for a slot without an object that can be read. */
	static USaveGame* LoadGameFromSlot(const FString& SlotName, const int32 UserIndex);
};
