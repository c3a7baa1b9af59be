// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/SaveGame.h"

#include "OtherSaveGame.generated.h"

/** A save game of somebody else, with members that are called like the plugin's. */
UCLASS()
class UOtherSaveGame : public USaveGame
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bSkipVersion = true;

	UPROPERTY()
	FString OfferedVersion = TEXT("Release_2.1.zip");
};
