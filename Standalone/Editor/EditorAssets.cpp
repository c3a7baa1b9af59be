// Copyright Corvane. MIT License.
#include "EditorAssets.h"

#include "AssetPaths.h"
#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "UObject/Package.h"

TArray<UObject*> FEditorAssets::GetAll()
{
	TArray<FAssetData> Data;
	// A session may have unloaded the registry's module.
	if (const IAssetRegistry* Registry = IAssetRegistry::Get())
	{
		Registry->GetAllAssets(Data);
	}
	TArray<UObject*> Assets;
	for (const FAssetData& Asset : Data)
	{
		Assets.Add(Asset.GetAsset());
	}
	return Assets;
}

FString FEditorAssets::GetPath(const UObject* Asset)
{
	return Asset->GetOutermost()->GetName();
}

UObject* FEditorAssets::Make(FName Path, UClass* Class)
{
	UPackage* Package = CreatePackage(*Path.ToString());
	UObject* Asset = NewObject<UObject>(
		Package, Class, FAssetPaths::GetAssetName(Path), RF_Public | RF_Standalone | RF_Transactional);
	IAssetRegistry::GetChecked().AssetCreated(Asset);
	return Asset;
}

void FEditorAssets::RemoveAll()
{
	for (UObject* Asset : GetAll())
	{
		IAssetRegistry::GetChecked().AssetDeleted(Asset);
		Asset->ClearFlags(RF_Public | RF_Standalone);
		Asset->MarkPendingKill();
	}
}

void FEditorAssets::ClearDirtyFlags()
{
	FEditorViews::GetLevelWorld()->GetOutermost()->SetDirtyFlag(false);
	for (const UObject* Asset : GetAll())
	{
		Asset->GetOutermost()->SetDirtyFlag(false);
	}
}
