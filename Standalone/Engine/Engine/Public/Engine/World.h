// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"

#include "World.generated.h"

class AActor;
class ULevel;

/** How an actor is spawned. */
struct FActorSpawnParameters
{
	/** What happens when another object of the level has the name already. */
	enum class ESpawnActorNameMode : uint8
	{
		/** The program ends. */
		Required_Fatal,
		/** Nothing is spawned. */
		Required_ReturnNull,
	};

	/** None: a free name is made from the class's, as "Actor_0". */
	FName Name;
	ESpawnActorNameMode NameMode = ESpawnActorNameMode::Required_Fatal;
	EObjectFlags ObjectFlags = RF_Transactional;
};

/** A level with its actors, in a package of its own. It is in the collector's root set until it is destroyed. */
UCLASS()
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Makes an empty world in a new package, which has no changes to save.
	 * @param bInformEngineOfWorld means nothing here: there is no list of worlds to enter it in.
	 */
	static UWorld* CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld);

	/** Gives the world and all that is in it to the collector: weak pointers are empty at once. */
	void DestroyWorld(bool bInformEngineOfWorld);

	UWorld* GetWorld() const override;

	/**
	 * Places a new actor; Location and Rotation may be null for zero. The package is not flagged as changed: that is
	 * left to whoever spawns, or to the step of the undo history that is being recorded.
	 * @return null for no class, an abstract one, one that is no actor, or a taken name (see NameMode).
	 */
	AActor* SpawnActor(UClass* InClass, FVector const* Location = nullptr, FRotator const* Rotation = nullptr,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());

	template <class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(T::StaticClass(), nullptr, nullptr, SpawnParameters));
	}

	template <class T>
	T* SpawnActor(FVector const& Location, FRotator const& Rotation,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(T::StaticClass(), &Location, &Rotation, SpawnParameters));
	}

	/** Takes an actor out of its level. @return false if it is null, of another world or destroyed already. */
	bool DestroyActor(AActor* Actor);

	UPROPERTY()
	ULevel* PersistentLevel = nullptr;

	EWorldType::Type WorldType = EWorldType::None;
};
