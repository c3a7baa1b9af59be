// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Components/SceneCaptureComponent2D.h"

#include "ZAVCaptureComponent.generated.h"

/**
 * Captures the view of its actor into a render target. Show-flag overrides stand in the inherited ShowFlagSettings.
 *
 * REFERENCE MODULE: streams nothing.
 */
UCLASS(ClassGroup = (Corvane), meta = (BlueprintSpawnableComponent, DisplayName = "ZAV Capture Component"))
class QUILLON_API UZAVCaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()
};
