// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "UObject/NameTypes.h"

struct FSlateBrush;

/** Looks into the registered style sets, for tests and reports. */
class SLATECORE_API FStyleInspector
{
public:
	/** Sorted by name. */
	static TArray<FName> GetStyleSetNames();
	/**
	 * Finds a brush by its address, and its key as it was spelled when it was set.
	 * @return false, with nothing written, for null and for a brush that is under no key of a registered set.
	 */
	static bool FindBrush(const FSlateBrush* Brush, FName& OutStyleSet, FName& OutKey);
};
