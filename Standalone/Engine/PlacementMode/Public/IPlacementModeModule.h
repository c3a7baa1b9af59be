// Copyright Corvane. MIT License.
#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Modules/ModuleManager.h"

class SWidget;
class UActorFactory;

/** A category of the panel from which actors are placed. */
struct FPlacementCategoryInfo
{
	FPlacementCategoryInfo(
		FText InDisplayName, FName InHandle, FString InTagMetaData, int32 InSortOrder = 0, bool bInSortable = true)
		: DisplayName(InDisplayName),
		  UniqueHandle(InHandle),
		  TagMetaData(MoveTemp(InTagMetaData)),
		  SortOrder(InSortOrder),
		  bSortable(bInSortable)
	{}

	FText DisplayName;
	FName UniqueHandle;
	/** What a tutorial finds the category's tab by. */
	FString TagMetaData;
	/** Lowest first. */
	int32 SortOrder;
	/** Makes the tab's content in place of the list of items. */
	TFunction<TSharedRef<SWidget>()> CustomGenerator;
	/** Whether items are shown by name, else in the order of their registration. */
	bool bSortable;
};

/** Something that can be placed. */
struct PLACEMENTMODE_API FPlaceableItem
{
	/** @param InFactory null to have the editor pick one for the class. */
	FPlaceableItem(
		UActorFactory* InFactory, const FAssetData& InAssetData, TOptional<int32> InSortOrder = TOptional<int32>());

	/** Of a class, its name as shown to the user; of an asset, the asset's name. */
	FText DisplayName;
	UActorFactory* Factory;
	FAssetData AssetData;
	/** Lowest first, and before the items that have none. */
	TOptional<int32> SortOrder;
};

/** Names one registered item. Made by IPlacementModeModule::RegisterPlaceableItem only. */
class FPlacementModeID
{
protected:
	friend class FPlacementModeModule;

	FPlacementModeID() = default;

	FName Category;
	/** Of no other item, in whatever category. */
	uint32 UniqueID = 0;
};

/** The names of the editor's own categories. */
struct FBuiltInPlacementCategories
{
	static FName Basic() { return FName("Basic"); }
	/** Every class of actors that is known when it is read. */
	static FName AllClasses() { return FName("AllClasses"); }
};

/** The panel from which actors are placed: its categories and what is in them. */
class IPlacementModeModule : public IModuleInterface
{
public:
	/** Loads the module if need be. */
	static IPlacementModeModule& Get()
	{
		return FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode");
	}

	/** @return false, with the settings left as they are, if there is a category of that handle. */
	virtual bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) = 0;
	/** Null if there is none; good until categories are registered or unregistered. */
	virtual const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const = 0;
	/** Drops the category with its items. Does nothing for an unknown handle. */
	virtual void UnregisterPlacementCategory(FName UniqueHandle) = 0;
	/** Appends the categories, lowest sort order first, those of one order as they were registered. */
	virtual void GetSortedCategories(TArray<FPlacementCategoryInfo>& OutCategories) const = 0;

	/** An item that was registered before is there once more. @return unset if there is no such category. */
	virtual TOptional<FPlacementModeID> RegisterPlaceableItem(
		FName CategoryName, const TSharedRef<FPlaceableItem>& Item) = 0;
	/** Appends a category's items in the order of their registration, none if there is no such category. */
	virtual void GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const = 0;
};
