// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

/** Texts of the engine as tooltips, which Qt takes for marked-up text where they look like it. */
class FToolTipText
{
public:
	/** Marked up so that it shows just this text, wrapped, of at most 500 characters. Empty for an empty text. */
	static QString Make(const FString& Text);
};
