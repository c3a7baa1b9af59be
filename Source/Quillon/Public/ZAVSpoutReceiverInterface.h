// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "ZAVSpoutReceiverInterface.generated.h"

class UTextureRenderTarget2D;

/**
 * One Spout receiver: from which sender it takes its texture, and where it puts it.
 *
 * The editor module finds the four properties by these names: renaming one breaks its details panel without an error.
 */
USTRUCT(BlueprintType)
struct QUILLON_API FZAVSpoutReceiverInterface
{
	GENERATED_BODY()

	/** The sender's name; not looked at while UseFirstAvailableSender is on. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	FString Name;

	/** Take whichever sender comes first instead of a named one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	bool UseFirstAvailableSender = true;

	/** Whether the entry receives. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	bool Active = true;

	/** Where the received texture goes. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Corvane Spout")
	UTextureRenderTarget2D* RenderTarget = nullptr;
};
