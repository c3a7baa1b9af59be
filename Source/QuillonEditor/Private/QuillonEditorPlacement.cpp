// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "AssetRegistry/AssetData.h"
#include "IPlacementModeModule.h"
#include "Modules/ModuleManager.h"
#include "UObject/Class.h"

#include "ZAVCineCamCapture.h"
#include "ZAVSpoutReceiverManager.h"
#include "ZAVSpoutSenderManager.h"

// The plugin's category of the Place Actors panel.

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

void FQuillonEditorModule::RegisterPlacementCategory()
{
	IPlacementModeModule& PlacementMode = FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode");
	const FPlacementCategoryInfo* Category = PlacementMode.GetRegisteredPlacementCategory(PlacementCategoryName);
	if (!Category)
	{
		PlacementMode.RegisterPlacementCategory(FPlacementCategoryInfo(
			LOCTEXT("CorvaneCategoryName", "Corvane"), PlacementCategoryName, TEXT("PMCorvane"), 25, true));
		Category = PlacementMode.GetRegisteredPlacementCategory(PlacementCategoryName);
	}
	// A category that was left from an earlier start keeps its settings, and gets the items once more.
	RegisterPlaceableItems(Category);
}

void FQuillonEditorModule::RegisterPlaceableItems(const FPlacementCategoryInfo* Category)
{
	IPlacementModeModule& PlacementMode = FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode");
	// A copy: the category's place in memory is good only until something is registered.
	const FName Handle = Category->UniqueHandle;
	for (UClass* ActorClass : {AZAVCineCamCapture::StaticClass(), AZAVSpoutSenderManager::StaticClass(),
			 AZAVSpoutReceiverManager::StaticClass()})
	{
		// No factory: the editor picks the one that suits the class. The item's id is not kept, as items go with their
		// category.
		PlacementMode.RegisterPlaceableItem(
			Handle, MakeShared<FPlaceableItem>(static_cast<UActorFactory*>(nullptr), FAssetData(ActorClass)));
	}
}

#undef LOCTEXT_NAMESPACE
