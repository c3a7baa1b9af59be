// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "GameFramework/Actor.h"

#include "ZAVCineCamCapture.generated.h"

class UZAVCaptureComponent;

/** A camera that captures its view into a render target, from where a Spout sender entry publishes it. */
UCLASS(meta = (DisplayName = "ZAV Cine Cam Capture"))
class QUILLON_API AZAVCineCamCapture : public AActor
{
	GENERATED_BODY()

public:
	AZAVCineCamCapture();

	/** Created with the actor and never replaced; its TextureTarget is what the camera renders into. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Instanced, Category = "Corvane Capture")
	UZAVCaptureComponent* CaptureComponent;
};
