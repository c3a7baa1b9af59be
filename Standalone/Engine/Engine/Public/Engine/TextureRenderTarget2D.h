// Copyright Corvane. MIT License.
#pragma once

#include "Engine/TextureRenderTarget.h"

#include "TextureRenderTarget2D.generated.h"

/** A plane texture that can be rendered into. The defaults are the class's; the content browser's factory has others.
 */
UCLASS()
class ENGINE_API UTextureRenderTarget2D : public UTextureRenderTarget
{
	GENERATED_BODY()

public:
	/** In pixels. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D)
	int32 SizeX = 500;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D)
	int32 SizeY = 500;

	/** What the texture is filled with before it is rendered into. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = TextureRenderTarget2D)
	FLinearColor ClearColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
};
