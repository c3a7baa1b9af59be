// Copyright Corvane. MIT License.
#include "LevelProperties.h"

#include "Engine/Texture.h"
#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace
{
	/** Finds a class by its reflected name, spelled exactly; names of the engine do not tell cases apart, files do. */
	UClass* FindPlaceableClass(const FString& Name)
	{
		// An object's path is no class name, and a longer name is fatal in the name table.
		int32 Ignored = INDEX_NONE;
		if (Name.IsEmpty() || Name.Len() >= NAME_SIZE || Name.FindChar(TEXT('.'), Ignored) ||
			Name.FindChar(TEXT('/'), Ignored) || Name.FindChar(TEXT(':'), Ignored))
		{
			return nullptr;
		}
		UClass* Class = FindObject<UClass>(ANY_PACKAGE, *Name);
		const bool bUsable = Class && Class->GetName().Equals(Name) && !Class->HasAnyClassFlags(CLASS_Abstract);
		return bUsable ? Class : nullptr;
	}
}

FProperty* FLevelProperties::Find(const UStruct* Struct, const FString& Name)
{
	FProperty* Property = Name.Len() < NAME_SIZE ? Struct->FindPropertyByName(FName(*Name)) : nullptr;
	return Property && Property->GetName().Equals(Name) && IsStored(Struct, Property) ? Property : nullptr;
}

bool FLevelProperties::IsStored(const UStruct* Struct, const FProperty* Property)
{
	const bool bOfClass = Struct->IsA(UClass::StaticClass());
	return !Property->HasAnyPropertyFlags(CPF_Transient) && (!bOfClass || Property->HasAnyPropertyFlags(CPF_Edit));
}

UObject* FLevelProperties::GetOwnComponent(const FObjectProperty* Property, const void* Value)
{
	return Property->HasAnyPropertyFlags(CPF_InstancedReference) ? Property->GetObjectPropertyValue(Value) : nullptr;
}

UClass* FLevelProperties::FindActorClass(const FString& Name)
{
	UClass* Class = FindPlaceableClass(Name);
	return Class && Class->IsChildOf(AActor::StaticClass()) ? Class : nullptr;
}

UClass* FLevelProperties::FindAssetClass(const FString& Name)
{
	// The engine has no mark for what can be an asset; here textures are all there is.
	UClass* Class = FindPlaceableClass(Name);
	return Class && Class->IsChildOf(UTexture::StaticClass()) ? Class : nullptr;
}
