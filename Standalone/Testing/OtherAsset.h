// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"

#include "OtherAsset.generated.h"

/** An asset that is not what was asked for. */
UCLASS()
class UOtherAsset : public UTexture
{
	GENERATED_BODY()
};
