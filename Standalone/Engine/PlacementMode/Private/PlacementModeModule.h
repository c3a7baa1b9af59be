// Copyright Corvane. MIT License.
#pragma once

#include "IPlacementModeModule.h"

/** The categories in the order of their registration. Begins with the editor's own ones. */
class FPlacementModeModule : public IPlacementModeModule
{
public:
	void StartupModule() override;

	bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) override;
	const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const override;
	void UnregisterPlacementCategory(FName UniqueHandle) override;
	void GetSortedCategories(TArray<FPlacementCategoryInfo>& OutCategories) const override;
	TOptional<FPlacementModeID> RegisterPlaceableItem(
		FName CategoryName, const TSharedRef<FPlaceableItem>& Item) override;
	void GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const override;

private:
	struct FCategory
	{
		FPlacementCategoryInfo Info;
		TArray<TSharedPtr<FPlaceableItem>> Items;
	};

	const FCategory* Find(FName UniqueHandle) const;

	TArray<FCategory> Categories;
	uint32 LastID = 0;
};
