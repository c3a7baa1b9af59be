// Copyright Corvane. MIT License.
#pragma once

#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

/** A world for the length of a test. */
class FTestWorld
{
public:
	FTestWorld() : World(UWorld::CreateWorld(EWorldType::Editor, true)) {}
	~FTestWorld()
	{
		World->DestroyWorld(true);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	FTestWorld(const FTestWorld&) = delete;
	FTestWorld& operator=(const FTestWorld&) = delete;

	UWorld* operator->() const { return World; }
	UWorld* Get() const { return World; }

private:
	UWorld* World;
};
