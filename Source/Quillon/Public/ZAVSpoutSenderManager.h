// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "GameFramework/Actor.h"
#include "ZAVSpoutSenderInterface.h"

#include "ZAVSpoutSenderManager.generated.h"

/** Publishes the level's render targets to Spout. A level needs one; only the first is written to by the editor's
 * tools. */
UCLASS(meta = (DisplayName = "ZAV Spout Sender Manager"))
class QUILLON_API AZAVSpoutSenderManager : public AActor
{
	GENERATED_BODY()

public:
	AZAVSpoutSenderManager();

	/** One entry a published sender, in the order of creation. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	TArray<FZAVSpoutSenderInterface> SpoutSenders;
};
