// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "GameFramework/Actor.h"
#include "ZAVSpoutReceiverInterface.h"

#include "ZAVSpoutReceiverManager.generated.h"

/** Receives Spout textures into the level. */
UCLASS(meta = (DisplayName = "ZAV Spout Receiver Manager"))
class QUILLON_API AZAVSpoutReceiverManager : public AActor
{
	GENERATED_BODY()

public:
	AZAVSpoutReceiverManager();

	/** The receivers; a new manager has one that takes the first available sender. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	TArray<FZAVSpoutReceiverInterface> SpoutReceivers;
};
