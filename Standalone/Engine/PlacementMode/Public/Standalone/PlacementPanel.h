// Copyright Corvane. MIT License.
#pragma once

#include "IPlacementModeModule.h"

/** What the panel shows. In the real engine only its widgets know. */
class PLACEMENTMODE_API FPlacementPanel
{
public:
	/**
	 * A category's items as they are shown. Of a sortable one those with an order of their own come first, by that
	 * order, then the others by name; what is equal stays in the order of registration. None without such a category.
	 */
	static TArray<TSharedPtr<FPlaceableItem>> GetShownItems(FName CategoryName);
};
