// Copyright Corvane. MIT License.
#include "Driver/PlacementRequests.h"

#include "Driver/AnswerText.h"
#include "EngineText.h"
#include "IPlacementModeModule.h"
#include "Standalone/PlacementPanel.h"

namespace
{
	/** An item names a class; an asset's name is that of the class without prefix letter. */
	FAnswer ListNames(const TArray<TSharedPtr<FPlaceableItem>>& Items)
	{
		FAnswer Names = FAnswer::array();
		for (const TSharedPtr<FPlaceableItem>& Item : Items)
		{
			Names.push_back(FEngineText::ForDisplay(Item->AssetData.AssetName));
		}
		return Names;
	}

	FAnswer Describe(const IPlacementModeModule& Panel, const FPlacementCategoryInfo& Category)
	{
		TArray<TSharedPtr<FPlaceableItem>> Items;
		Panel.GetItemsForCategory(Category.UniqueHandle, Items);
		FAnswer Answer;
		Answer["handle"] = FEngineText::ForDisplay(Category.UniqueHandle);
		FAnswerText::Add(Answer, "name", Category.DisplayName);
		Answer["tag"] = FEngineText::ForDisplay(Category.TagMetaData);
		Answer["order"] = Category.SortOrder;
		Answer["sortable"] = Category.bSortable;
		Answer["items"] = ListNames(Items);
		Answer["shown"] = ListNames(FPlacementPanel::GetShownItems(Category.UniqueHandle));
		return Answer;
	}

	FAnswer RunPlacement(FDriverSession& /*Session*/, const FRequest& /*Request*/)
	{
		TArray<FPlacementCategoryInfo> Categories;
		// Looking must not load it.
		const auto* Panel = FModuleManager::GetModulePtr<IPlacementModeModule>("PlacementMode");
		if (Panel)
		{
			Panel->GetSortedCategories(Categories);
		}
		FAnswer Answer = FAnswer::array();
		for (const FPlacementCategoryInfo& Category : Categories)
		{
			Answer.push_back(Describe(*Panel, Category));
		}
		return {{"categories", std::move(Answer)}};
	}
}

std::vector<FRequestDefinition> FPlacementRequests::GetAll()
{
	return {{"placement", {}, &RunPlacement}};
}
