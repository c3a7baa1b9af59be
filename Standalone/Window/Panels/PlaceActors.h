// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "AssetRegistry/AssetData.h"
#include "Panels/Panel.h"
#include "WindowContext.h"

class FListNote;
class FSearchBox;
class UClass;
struct FPlacementCategoryInfo;

/** "Place Actors": what modules offer to be placed, by category. */
class FPlaceActors : public FPanel
{
public:
	explicit FPlaceActors(FWindowContext& InContext, QWidget* Parent = nullptr);

	void Poll() override;
	void Invalidate() override { ReadTime = -1.0; }

	/** Where something new stands: on the ground in front of the view if that is near, else a little way ahead. */
	static FVector FindPlace(const FVector& ViewLocation, const FRotator& ViewRotation);

private:
	/** A copy of an item: its module may go while it is shown. */
	struct FItem
	{
		QString Name;
		FAssetData Asset;
		bool operator==(const FItem& Other) const;
	};

	struct FCategory
	{
		FName Handle;
		QString Name;
		/** It has a content of its own instead of items. */
		bool bCustom = false;
		std::vector<FItem> Items;
		bool operator==(const FCategory& Other) const;
	};

	void SetUpLists();
	void LayOut();
	static FCategory Read(const FPlacementCategoryInfo& Info);
	static std::vector<FCategory> ReadCategories();
	void ShowCategories();
	void ShowItems();
	std::vector<FItem> FindItems() const;
	QString GetReasonForNone() const;
	void Place(int Row);
	/** The class of actors that an item names, or null. */
	static UClass* FindClass(const FItem& Item);

	FWindowContext& Context;
	FSearchBox* SearchBox;
	QListWidget* CategoryList;
	QListWidget* ItemList;
	FListNote* Note;
	std::vector<FCategory> Categories;
	std::vector<FItem> ShownItems;
	/** What the user has chosen; kept while it is away with its module. */
	FName Chosen;
	/** When the categories were last read, in the application's seconds. */
	double ReadTime = -1.0;
	bool bWasLoaded = false;
};
