// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "GameFramework/SaveGame.h"

#include "ZAVSaveGame.generated.h"

/** What is remembered of upgrade notices across restarts of the editor. */
UCLASS()
class QUILLON_API UZAVSaveGame : public USaveGame
{
	GENERATED_BODY()

public:
	/** The user whose slot is used. */
	UPROPERTY(VisibleAnywhere, Category = "Corvane Save")
	int32 UserIndex = 0;

	/** The slot that is used. */
	UPROPERTY(VisibleAnywhere, Category = "Corvane Save")
	FString SaveSlotName = TEXT("ZAVQuillon");

	/** The user does not want to hear of the release in OfferedVersion again. */
	UPROPERTY(VisibleAnywhere, Category = "Corvane Save")
	bool bSkipVersion = false;

	/** The release that was offered last: the last segment of its download address. */
	UPROPERTY(VisibleAnywhere, Category = "Corvane Save")
	FString OfferedVersion;
};
