// Copyright Corvane. MIT License.
#pragma once

#include "Engine/Texture.h"

#include "TextureRenderTarget.generated.h"

/** A texture that can be rendered into. */
UCLASS(Abstract)
class ENGINE_API UTextureRenderTarget : public UTexture
{
	GENERATED_BODY()
};
