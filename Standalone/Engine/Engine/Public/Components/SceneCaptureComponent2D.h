// Copyright Corvane. MIT License.
#pragma once

#include "Components/SceneCaptureComponent.h"

#include "SceneCaptureComponent2D.generated.h"

class UTextureRenderTarget2D;

/** Renders the scene into a plane texture. */
UCLASS()
class ENGINE_API USceneCaptureComponent2D : public USceneCaptureComponent
{
	GENERATED_BODY()

public:
	/** What is rendered into; null for nothing. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	UTextureRenderTarget2D* TextureTarget = nullptr;
};
