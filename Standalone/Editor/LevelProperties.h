// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FObjectProperty;
class FProperty;
class UClass;
class UObject;
class UStruct;

/** Which reflected properties and classes a level file may name. Reading and writing share these rules. */
class FLevelProperties
{
public:
	/** @return the property of that name, letter case included, or null if there is none that a level file holds. */
	static FProperty* Find(const UStruct* Struct, const FString& Name);

	/**
	 * Of an object, what the details panel shows is part of the level, and what only the engine keeps is not. Of a
	 * structure all members are.
	 */
	static bool IsStored(const UStruct* Struct, const FProperty* Property);

	/** @return the component that stands in this property if its owner makes it itself, else null. */
	static UObject* GetOwnComponent(const FObjectProperty* Property, const void* Value);

	/** @return a class of actors that can be placed, or null. */
	static UClass* FindActorClass(const FString& Name);

	/** @return a class of objects that stand in a package of their own, or null. */
	static UClass* FindAssetClass(const FString& Name);
};
