// Copyright Corvane. MIT License.
#pragma once

#include <vector>

#include "CoreMinimal.h"

class AActor;
class UClass;

/** What a user does with actors, wherever he does it: in a panel, in the viewport or by a request. */
class FActorEdits
{
public:
	/** Selects these and nothing else. Tells of the change once. */
	static void SelectOnly(const std::vector<AActor*>& Actors);

	/** Whether actors of the class have a location and a rotation. */
	static bool HasPlace(const UClass* Class);

	/**
	 * Places a new actor in the open level and selects it alone; one step of the undo history. Without a place in the
	 * world it stands at zero.
	 * @return null for a class that can't be spawned.
	 */
	static AActor* Place(UClass* Class, const FVector& Location, const FRotator& Rotation);
};
