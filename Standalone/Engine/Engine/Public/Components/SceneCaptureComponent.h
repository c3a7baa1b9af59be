// Copyright Corvane. MIT License.
#pragma once

#include "Components/SceneComponent.h"
#include "ShowFlags.h"

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
	USceneCaptureComponent();

	void PostInitProperties() override;
	void PostLoad() override;
	void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

	/** The flags that differ from the defaults. */
	UPROPERTY(EditAnywhere, Interp, Category = SceneCapture)
	TArray<FEngineShowFlagsSetting> ShowFlagSettings;

	/**
	 * What is drawn: the archetype's flags with the settings applied, as of the last change that the component was told
	 * of. A template's are those of a game's view, as far as captures have them.
	 */
	FEngineShowFlags ShowFlags;

protected:
	/** Renews ShowFlags. A later setting wins over an earlier one; the name of no flag means nothing. */
	virtual void UpdateShowFlags();

private:
	void ApplySetting(const FString& FlagName, bool bEnabled);
};
