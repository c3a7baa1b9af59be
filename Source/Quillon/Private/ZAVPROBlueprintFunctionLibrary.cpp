// Copyright Corvane. MIT License.
#include "ZAVPROBlueprintFunctionLibrary.h"

namespace
{
	bool bEditorViewportsRender = true;
	bool bRuntimeViewportRenders = true;
}

void UZAVPROBlueprintFunctionLibrary::ToggleEditorViewportRendering()
{
	bEditorViewportsRender = !bEditorViewportsRender;
}

void UZAVPROBlueprintFunctionLibrary::ToggleRuntimeViewportRendering()
{
	bRuntimeViewportRenders = !bRuntimeViewportRenders;
}

bool UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering()
{
	return bEditorViewportsRender;
}

bool UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering()
{
	return bRuntimeViewportRenders;
}
