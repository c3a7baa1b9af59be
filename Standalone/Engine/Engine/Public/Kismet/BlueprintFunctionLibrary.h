// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "BlueprintFunctionLibrary.generated.h"

/** The base of classes that are nothing but static functions. */
UCLASS(Abstract)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};
