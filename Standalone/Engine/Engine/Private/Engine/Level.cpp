// Copyright Corvane. MIT License.
#include "Engine/Level.h"

#include "Engine/World.h"

FSimpleMulticastDelegate ULevel::LevelDirtiedEvent;

UWorld* ULevel::GetWorld() const
{
	return GetTypedOuter<UWorld>();
}
