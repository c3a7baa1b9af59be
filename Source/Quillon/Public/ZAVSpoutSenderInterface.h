// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "ZAVSpoutSenderInterface.generated.h"

class UTextureRenderTarget2D;

/** One Spout sender: which texture is published, and under which names. */
USTRUCT(BlueprintType)
struct QUILLON_API FZAVSpoutSenderInterface
{
	GENERATED_BODY()

	// Constructors, assignment and destructor are exported functions: other modules link against them instead of making
	// their own, so that fields can be added without building those again.
	FZAVSpoutSenderInterface();
	FZAVSpoutSenderInterface(const FZAVSpoutSenderInterface& Other);
	FZAVSpoutSenderInterface& operator=(const FZAVSpoutSenderInterface& Other);
	~FZAVSpoutSenderInterface();

	/** Whether the entry publishes. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	bool bActive;

	/** The name under which the texture is published from the editor. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	FString SpoutSenderName;

	/** The name under which a stand-alone game publishes it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	FString StandaloneSenderName;

	/** The texture that is published. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	UTextureRenderTarget2D* RenderTarget;
};
