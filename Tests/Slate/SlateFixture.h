// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Framework/Application/SlateApplication.h"
#include "Standalone/SlateNullRenderer.h"
#include "Widgets/SWidget.h"

/** A Slate application without a window for the length of a test, and the hands of a user. */
class FSlateFixture : public ::testing::Test
{
protected:
	FSlateFixture()
	{
		FSlateApplication::Create();
		FSlateApplication::Get().InitializeRenderer(MakeShared<FSlateNullRenderer>());
	}
	virtual ~FSlateFixture() override { FSlateApplication::Shutdown(); }

	static FSlateApplication& App() { return FSlateApplication::Get(); }
	static FPointerEvent MakePointerEvent(const FKey& Button)
	{
		return FPointerEvent(0, FVector2D(), FVector2D(), TSet<FKey>{Button}, Button, 0.0f, FModifierKeysState());
	}
	static void MouseDown(const TSharedRef<SWidget>& Widget, const FKey& Button = EKeys::LeftMouseButton)
	{
		FWidgetPath Path;
		App().GeneratePathToWidgetUnchecked(Widget, Path);
		App().RoutePointerDownEvent(Path, MakePointerEvent(Button));
	}
	static void MouseUp(const TSharedRef<SWidget>& Widget, const FKey& Button = EKeys::LeftMouseButton)
	{
		FWidgetPath Path;
		App().GeneratePathToWidgetUnchecked(Widget, Path);
		App().RoutePointerUpEvent(Path, MakePointerEvent(Button));
	}
	static void Click(const TSharedRef<SWidget>& Widget)
	{
		MouseDown(Widget);
		MouseUp(Widget);
	}
	static FModifierKeysState Modifiers(bool bShift, bool bControl)
	{
		return FModifierKeysState(bShift, false, bControl, false, false, false, false, false, false);
	}
	static bool KeyDown(const FKey& Key, bool bShift = false, bool bControl = false)
	{
		return App().ProcessKeyDownEvent(FKeyEvent(Key, Modifiers(bShift, bControl), 0, false, 0, 0));
	}
	static bool KeyUp(const FKey& Key)
	{
		return App().ProcessKeyUpEvent(FKeyEvent(Key, FModifierKeysState(), 0, false, 0, 0));
	}
	static void TypeUnit(TCHAR Unit)
	{
		App().ProcessKeyCharEvent(FCharacterEvent(Unit, FModifierKeysState(), 0, false));
	}
	static void Type(const FString& Text)
	{
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			TypeUnit(Text[Index]);
		}
	}
	static bool HasFocus(const TSharedRef<SWidget>& Widget)
	{
		return App().GetKeyboardFocusedWidget() == Widget && Widget->HasKeyboardFocus();
	}
};
