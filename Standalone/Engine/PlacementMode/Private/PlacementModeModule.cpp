// Copyright Corvane. MIT License.
#include "PlacementModeModule.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

#define LOCTEXT_NAMESPACE "PlacementMode"

namespace
{
	TSharedRef<FPlaceableItem> MakeItem(const UClass* Class)
	{
		return MakeShared<FPlaceableItem>(static_cast<UActorFactory*>(nullptr), FAssetData(Class));
	}

	/** The actor classes of which there can be actors, from the base on. */
	TArray<UClass*> GetPlaceableClasses()
	{
		TArray<UClass*> Classes = {AActor::StaticClass()};
		GetDerivedClasses(AActor::StaticClass(), Classes);
		Classes.RemoveAll([](const UClass* Class) { return Class->HasAnyClassFlags(CLASS_Abstract); });
		return Classes;
	}
}

void FPlacementModeModule::StartupModule()
{
	const FName Basic = FBuiltInPlacementCategories::Basic();
	RegisterPlacementCategory(FPlacementCategoryInfo(LOCTEXT("Basic", "Basic"), Basic, TEXT("PMBasic"), 10));
	for (const UClass* Class : GetPlaceableClasses())
	{
		// The engine's own ones: the others are their modules' business.
		if (Class->GetOutermost() == AActor::StaticClass()->GetOutermost())
		{
			RegisterPlaceableItem(Basic, MakeItem(Class));
		}
	}
	RegisterPlacementCategory(FPlacementCategoryInfo(
		LOCTEXT("AllClasses", "All Classes"), FBuiltInPlacementCategories::AllClasses(), TEXT("PMAllClasses"), 50));
}

bool FPlacementModeModule::RegisterPlacementCategory(const FPlacementCategoryInfo& Info)
{
	const bool bNew = !Find(Info.UniqueHandle);
	if (bNew)
	{
		Categories.Add(FCategory{Info, {}});
	}
	return bNew;
}

const FPlacementCategoryInfo* FPlacementModeModule::GetRegisteredPlacementCategory(FName UniqueHandle) const
{
	const FCategory* Category = Find(UniqueHandle);
	return Category ? &Category->Info : nullptr;
}

void FPlacementModeModule::UnregisterPlacementCategory(FName UniqueHandle)
{
	Categories.RemoveAll(
		[&UniqueHandle](const FCategory& Category) { return Category.Info.UniqueHandle == UniqueHandle; });
}

void FPlacementModeModule::GetSortedCategories(TArray<FPlacementCategoryInfo>& OutCategories) const
{
	TArray<FPlacementCategoryInfo> Sorted;
	for (const FCategory& Category : Categories)
	{
		Sorted.Add(Category.Info);
	}
	Sorted.StableSort([](const FPlacementCategoryInfo& Left, const FPlacementCategoryInfo& Right)
		{ return Left.SortOrder < Right.SortOrder; });
	OutCategories.Append(Sorted);
}

TOptional<FPlacementModeID> FPlacementModeModule::RegisterPlaceableItem(
	FName CategoryName, const TSharedRef<FPlaceableItem>& Item)
{
	FCategory* Category = const_cast<FCategory*>(Find(CategoryName));
	if (!Category)
	{
		return TOptional<FPlacementModeID>();
	}
	Category->Items.Add(Item);
	FPlacementModeID ID;
	ID.Category = CategoryName;
	ID.UniqueID = ++LastID;
	return ID;
}

void FPlacementModeModule::GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const
{
	const FCategory* Category = Find(CategoryName);
	if (!Category)
	{
		return;
	}
	OutItems.Append(Category->Items);
	if (CategoryName == FBuiltInPlacementCategories::AllClasses())
	{
		for (const UClass* Class : GetPlaceableClasses())
		{
			OutItems.Add(MakeItem(Class));
		}
	}
}

const FPlacementModeModule::FCategory* FPlacementModeModule::Find(FName UniqueHandle) const
{
	return Categories.FindByPredicate(
		[&UniqueHandle](const FCategory& Category) { return Category.Info.UniqueHandle == UniqueHandle; });
}

IMPLEMENT_MODULE(FPlacementModeModule, PlacementMode)

#undef LOCTEXT_NAMESPACE
