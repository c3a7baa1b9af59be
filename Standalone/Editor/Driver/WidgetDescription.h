// Copyright Corvane. MIT License.
#pragma once

#include "Driver/Request.h"

#include "CoreMinimal.h"

class SWidget;

/** A tree of widgets as answers show it: what stands where, what it displays and in which state it is. */
class FWidgetDescription
{
public:
	/** @return the widget and all below it, collapsed ones too. The root's slot, being outside the tree, is null. */
	static FAnswer Describe(const TSharedRef<SWidget>& Root);

	/** @return the text that the widget itself displays, or null for one that displays none. */
	static const FText* FindText(const SWidget& Widget);
};
