// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Class.h"

#include "ToolMenuOwner.generated.h"

/** On whose behalf something was added to a menu: an object, told by its address, or a name. */
USTRUCT()
struct TOOLMENUS_API FToolMenuOwner
{
	GENERATED_BODY()

	/** Nobody. */
	FToolMenuOwner() = default;
	FToolMenuOwner(void* InPointer) : Pointer(InPointer) {}
	FToolMenuOwner(const FName InValue) : Name(InValue) {}
	FToolMenuOwner(const WIDECHAR* InValue) : Name(InValue) {}
	FToolMenuOwner(const ANSICHAR* InValue) : Name(InValue) {}

	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }
	bool operator!=(const FToolMenuOwner& Other) const { return !(*this == Other); }
	bool IsSet() const { return *this != FToolMenuOwner(); }

private:
	const void* Pointer = nullptr;
	FName Name;
};
