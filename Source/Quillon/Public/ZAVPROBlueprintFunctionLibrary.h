// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Kismet/BlueprintFunctionLibrary.h"

#include "ZAVPROBlueprintFunctionLibrary.generated.h"

/**
 * Switches the rendering of viewports, to save time on the graphics card while only captures are needed.
 *
 * REFERENCE MODULE: keeps the two switches, renders nothing either way.
 */
UCLASS()
class QUILLON_API UZAVPROBlueprintFunctionLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Switches the editor viewports' rendering off when it is on, and on when it is off. */
	UFUNCTION(BlueprintCallable, Category = "Corvane")
	static void ToggleEditorViewportRendering();

	/** The same for the game's viewport. */
	UFUNCTION(BlueprintCallable, Category = "Corvane")
	static void ToggleRuntimeViewportRendering();

	/** True while the editor viewports render. */
	UFUNCTION(BlueprintPure, Category = "Corvane")
	static bool GetIsEditorViewportRendering();

	/** True while the game's viewport renders. */
	UFUNCTION(BlueprintPure, Category = "Corvane")
	static bool GetIsRuntimeViewportRendering();
};
