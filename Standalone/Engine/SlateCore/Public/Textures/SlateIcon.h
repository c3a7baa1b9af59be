// Copyright Corvane. MIT License.
#pragma once

#include "UObject/NameTypes.h"

struct FSlateBrush;

/** An icon by style set and brush key; looked up when it is shown, so the set may be registered later. */
struct SLATECORE_API FSlateIcon
{
	/** No icon. */
	FSlateIcon();
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName);

	bool IsSet() const { return bIsSet; }
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }
	/** The brush, the default brush for a key that the set lacks, or the brush that draws nothing. Never null. */
	const FSlateBrush* GetIcon() const;

private:
	FName StyleSetName;
	FName StyleName;
	bool bIsSet = false;
};
