// Copyright Corvane. MIT License.
#pragma once

#include "Rendering/SlateRenderer.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** What the widgets of this layer may ask of the application, which stands a layer higher. */
class SLATECORE_API FSlateApplicationBase
{
public:
	virtual ~FSlateApplicationBase() = default;

	static bool IsInitialized();
	/** Fatal while there is no application. */
	static FSlateApplicationBase& Get();

	/** The widget that gets the keys, or null. */
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const = 0;

	/** Null until InitializeRenderer. */
	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

protected:
	static void SetCurrent(const TSharedPtr<FSlateApplicationBase>& Application);

	TSharedPtr<FSlateRenderer> Renderer;
};
