// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

/**
 * What the properties of a level file may point at: its assets by path and its actors by name, in one table, as a path
 * starts with a slash and a name holds none. Letter case does not matter, as everywhere in the engine's names.
 */
class FLevelReferences
{
public:
	struct FTarget
	{
		UClass* Class = nullptr;
		/** Null while the file is only being checked. */
		UObject* Object = nullptr;
	};

	/** @return false if the key is already taken. */
	bool Add(FName Key, UClass* Class);

	/** Sets the object that stands behind a key that was added before. */
	void Resolve(FName Key, UObject* Object);

	/** @return null if nothing in the file has this key. */
	const FTarget* Find(FName Key) const;

private:
	TMap<FName, FTarget> Targets;
};
