// Copyright Corvane. MIT License.
#include "UserInput.h"

#include "Framework/Application/SlateApplication.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "Widgets/SWidget.h"

bool FUserInput::Focus(const TSharedRef<SWidget>& Widget)
{
	return FSlateApplication::Get().SetKeyboardFocus(Widget);
}

void FUserInput::Type(const FString& Text)
{
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Text[Index], FModifierKeysState(), 0, false));
	}
}

void FUserInput::Press(const FKey& Key, const FModifierKeysState& Modifiers)
{
	const FKeyEvent Event(Key, Modifiers, 0, false, 0, 0);
	FSlateApplication::Get().ProcessKeyDownEvent(Event);
	FSlateApplication::Get().ProcessKeyUpEvent(Event);
}

FModifierKeysState FUserInput::WithControl()
{
	return FModifierKeysState(false, false, true, false, false, false, false, false, false);
}

void FUserInput::Paste(const FString& Text)
{
	FPlatformApplicationMisc::ClipboardCopy(*Text);
	Press(EKeys::V, WithControl());
}

bool FUserInput::Click(const TSharedRef<SWidget>& Widget)
{
	FWidgetPath Path;
	if (!FSlateApplication::Get().GeneratePathToWidgetUnchecked(Widget, Path))
	{
		return false;
	}
	const FGeometry& Geometry = Path.Widgets.Last().Geometry;
	const FVector2D Middle(Geometry.GetAbsolutePosition().X + Geometry.GetLocalSize().X / 2.0f,
		Geometry.GetAbsolutePosition().Y + Geometry.GetLocalSize().Y / 2.0f);
	TSet<FKey> Pressed;
	Pressed.Add(EKeys::LeftMouseButton);
	FSlateApplication::Get().RoutePointerDownEvent(
		Path, FPointerEvent(0, Middle, Middle, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
	FSlateApplication::Get().RoutePointerUpEvent(
		Path, FPointerEvent(0, Middle, Middle, TSet<FKey>(), EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
	return true;
}
