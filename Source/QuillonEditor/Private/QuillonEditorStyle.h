// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Styling/SlateStyle.h"

/**
 * The module's style set: the pictures of its button, tab and notification, and the icons and thumbnails of the
 * plugin's actor classes. Registered from start-up to shut-down of the module; game thread only.
 */
class FQuillonEditorStyle
{
public:
	/** Makes and registers the style set. Does nothing when it exists. */
	static void Initialize();

	/** Unregisters and releases the style set. Reports an ensure when somebody else still shares it, and goes on. */
	static void Shutdown();

	/** Has the renderer load its textures again; does nothing without a running Slate application. */
	static void ReloadTextures();

	/** The registered set; fatal when there is none. */
	static const ISlateStyle& Get();

	/** "QuillonEditorStyle". */
	static FName GetStyleSetName();

private:
	static TSharedRef<FSlateStyleSet> Create();

	static TSharedPtr<FSlateStyleSet> StyleInstance;

	// Image sizes in slate units. The engine's toolbars have a small form at 20 x 20: the size is kept for it, no brush
	// uses it yet.
	static const FVector2D Icon16x16;
	static const FVector2D Icon20x20;
	static const FVector2D Icon40x40;
	static const FVector2D Icon64x64;
	static const FVector2D Icon80x80;
	static const FVector2D Icon128x128;
};
