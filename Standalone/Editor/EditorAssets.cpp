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
	IAssetRegistry::Get()->GetAllAssets(Data);
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
	IAssetRegistry::Get()->AssetCreated(Asset);
	return Asset;
}

void FEditorAssets::RemoveAll()
{
	for (UObject* Asset : GetAll())
	{
		IAssetRegistry::Get()->AssetDeleted(Asset);
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
