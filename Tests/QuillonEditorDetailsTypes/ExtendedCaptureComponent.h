// Copyright Corvane. MIT License.
#pragma once

#include "ZAVCaptureComponent.h"

#include "ExtendedCaptureComponent.generated.h"

/** A capture component with settings of its own in the category of the show flags, and beside it. */
UCLASS()
class UExtendedCaptureComponent : public UZAVCaptureComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Corvane Capture Settings")
	float Exposure = 1.0f;

	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = "Corvane Capture Settings")
	bool bDither = false;

	UPROPERTY(EditAnywhere, Category = "Corvane Capture Settings")
	FString Note;

	UPROPERTY(EditAnywhere, Category = "Other Settings")
	int32 Other = 0;
};
