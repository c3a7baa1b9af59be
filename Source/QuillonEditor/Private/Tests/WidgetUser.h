// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Widgets/SWidget.h"

struct FKey;

/** What a user sees and does with widgets of any kind: finds them by type in the order of the tree, clicks, presses
 * keys. */
class FWidgetUser
{
public:
	/** The widget and its descendants of a type ("STextBlock"), in tree order. */
	static TArray<TSharedRef<SWidget>> FindAll(const TSharedRef<SWidget>& Root, const TCHAR* Type);

	/** Whether the widget and all its parents up to the root are visible. */
	static bool IsShown(const TSharedRef<SWidget>& Root, const TSharedRef<SWidget>& Widget);

	/** Presses and releases the left mouse button on a widget of an open tab. */
	static void Click(const TSharedRef<SWidget>& Widget);

	static void PressKey(const FKey& Key);
};

/** "Namespace,Key,Source" of a text, for comparison in one go; "-" where the text has none of one of them. */
FString DescribeText(const FText& Text);
