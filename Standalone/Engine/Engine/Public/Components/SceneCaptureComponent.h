// Copyright Corvane. MIT License.
#pragma once

#include "Components/SceneComponent.h"

#include "SceneCaptureComponent.generated.h"

/** Switches one show flag on or off, other than its default. */
USTRUCT(BlueprintType)
struct ENGINE_API FEngineShowFlagsSetting
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	FString ShowFlagName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	bool Enabled = false;

	/** The name counts without regard to ASCII case, as flags are found. */
	bool operator==(const FEngineShowFlagsSetting& Other) const
	{
		return ShowFlagName == Other.ShowFlagName && Enabled == Other.Enabled;
	}
};

/** Renders the scene from where it is. */
UCLASS(Abstract)
class ENGINE_API USceneCaptureComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	/** The flags that differ from the defaults. */
	UPROPERTY(EditAnywhere, Interp, Category = SceneCapture)
	TArray<FEngineShowFlagsSetting> ShowFlagSettings;
};
