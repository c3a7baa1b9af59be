// Copyright Corvane. MIT License.
#include "WidgetUser.h"

#include "Framework/Application/SlateApplication.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"
#include "Layout/Children.h"
#include "Layout/WidgetPath.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	void CollectWidgets(const TSharedRef<SWidget>& Widget, const FName& Type, TArray<TSharedRef<SWidget>>& OutFound)
	{
		if (Widget->GetType() == Type)
		{
			OutFound.Add(Widget);
		}
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			CollectWidgets(Children->GetChildAt(Index), Type, OutFound);
		}
	}
}

TArray<TSharedRef<SWidget>> FWidgetUser::FindAll(const TSharedRef<SWidget>& Root, const TCHAR* Type)
{
	TArray<TSharedRef<SWidget>> Found;
	CollectWidgets(Root, FName(Type), Found);
	return Found;
}

bool FWidgetUser::IsShown(const TSharedRef<SWidget>& Root, const TSharedRef<SWidget>& Widget)
{
	if (!Root->GetVisibility().IsVisible())
	{
		return false;
	}
	if (Root == Widget)
	{
		return true;
	}
	FChildren* Children = Root->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		if (IsShown(Children->GetChildAt(Index), Widget))
		{
			return true;
		}
	}
	return false;
}

void FWidgetUser::Click(const TSharedRef<SWidget>& Widget)
{
	FSlateApplication& Slate = FSlateApplication::Get();
	FWidgetPath Path;
	Slate.GeneratePathToWidgetUnchecked(Widget, Path);
	const FVector2D Position = Path.Widgets.Last().Geometry.GetAbsolutePosition();
	// The events only refer to the sets.
	TSet<FKey> PressedButtons;
	PressedButtons.Add(EKeys::LeftMouseButton);
	const TSet<FKey> NoButtons;
	const FPointerEvent Press(
		0, Position, Position, PressedButtons, EKeys::LeftMouseButton, 0.0f, FModifierKeysState());
	const FPointerEvent Release(0, Position, Position, NoButtons, EKeys::LeftMouseButton, 0.0f, FModifierKeysState());
	Slate.RoutePointerDownEvent(Path, Press);
	Slate.RoutePointerUpEvent(Path, Release);
}

void FWidgetUser::PressKey(const FKey& Key)
{
	FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(Key, FModifierKeysState(), 0, false, 0, 0));
}

FString DescribeText(const FText& Text)
{
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	const FString* Source = FTextInspector::GetSourceString(Text);
	return (Namespace.IsSet() ? Namespace.GetValue() : FString(TEXT("-"))) + TEXT(",") +
		(Key.IsSet() ? Key.GetValue() : FString(TEXT("-"))) + TEXT(",") + (Source ? *Source : FString(TEXT("-")));
}

#endif
