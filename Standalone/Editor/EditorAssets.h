// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

/** The assets in memory, in the order of their making. */
class FEditorAssets
{
public:
	static TArray<UObject*> GetAll();

	/** @return the name of the asset's package, which is what files and reports call its path. */
	static FString GetPath(const UObject* Asset);

	/** Makes an asset without the asset tools, whose rules for new names are not those of a name that is known. */
	static UObject* Make(FName Path, UClass* Class);

	/** Gives all assets to the collector and takes them off the registry. */
	static void RemoveAll();

	/** Says that neither the open level nor any asset has changes to save. */
	static void ClearDirtyFlags();
};
