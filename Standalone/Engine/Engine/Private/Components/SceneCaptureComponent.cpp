// Copyright Corvane. MIT License.
#include "Components/SceneCaptureComponent.h"

#include "Templates/Casts.h"

USceneCaptureComponent::USceneCaptureComponent() : ShowFlags(ESFIM_Game)
{
	// A capture has no frame before it to blur with, and nothing to blend separate translucency into.
	ApplySetting(TEXT("MotionBlur"), false);
	ApplySetting(TEXT("SeparateTranslucency"), false);
}

void USceneCaptureComponent::PostInitProperties()
{
	Super::PostInitProperties();
	UpdateShowFlags();
}

void USceneCaptureComponent::PostLoad()
{
	Super::PostLoad();
	UpdateShowFlags();
}

void USceneCaptureComponent::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	UpdateShowFlags();
}

void USceneCaptureComponent::UpdateShowFlags()
{
	// A template's flags are what its constructor chose; its settings reach the objects that are made from it.
	const USceneCaptureComponent* Archetype = IsTemplate() ? nullptr : Cast<USceneCaptureComponent>(GetArchetype());
	if (!Archetype)
	{
		return;
	}
	ShowFlags = Archetype->ShowFlags;
	for (const FEngineShowFlagsSetting& Setting : ShowFlagSettings)
	{
		ApplySetting(Setting.ShowFlagName, Setting.Enabled);
	}
}

void USceneCaptureComponent::ApplySetting(const FString& FlagName, bool bEnabled)
{
	const int32 Index = FEngineShowFlags::FindIndexByName(*FlagName);
	if (Index != INDEX_NONE)
	{
		ShowFlags.SetSingleFlag(static_cast<uint32>(Index), bEnabled);
	}
}
