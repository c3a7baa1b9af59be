// Copyright Corvane. MIT License.
#include "Standalone/PlacementPanel.h"

namespace
{
	bool IsShownBefore(const TSharedPtr<FPlaceableItem>& Left, const TSharedPtr<FPlaceableItem>& Right)
	{
		if (Left->SortOrder.IsSet() && Right->SortOrder.IsSet())
		{
			return Left->SortOrder.GetValue() < Right->SortOrder.GetValue();
		}
		if (Left->SortOrder.IsSet() || Right->SortOrder.IsSet())
		{
			return Left->SortOrder.IsSet();
		}
		return Left->DisplayName.CompareTo(Right->DisplayName) < 0;
	}
}

TArray<TSharedPtr<FPlaceableItem>> FPlacementPanel::GetShownItems(FName CategoryName)
{
	const IPlacementModeModule& Module = IPlacementModeModule::Get();
	TArray<TSharedPtr<FPlaceableItem>> Items;
	Module.GetItemsForCategory(CategoryName, Items);
	const FPlacementCategoryInfo* Category = Module.GetRegisteredPlacementCategory(CategoryName);
	if (Category && Category->bSortable)
	{
		Items.StableSort(IsShownBefore);
	}
	return Items;
}
