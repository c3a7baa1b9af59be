// Copyright Corvane. MIT License.
#include "AssetRegistry.h"

#include "UObject/Package.h"

namespace
{
	IAssetRegistry* TheRegistry = nullptr;

	bool IsAsset(const UObject* Object)
	{
		return IsValid(Object) && Object->HasAnyFlags(RF_Public) && Object->GetOuter() &&
			Object->GetOuter() == Object->GetOutermost();
	}
}

IAssetRegistry* IAssetRegistry::Get()
{
	return TheRegistry;
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	check(TheRegistry);
	return *TheRegistry;
}

FAssetRegistry::FAssetRegistry()
{
	TheRegistry = this;
}

FAssetRegistry::~FAssetRegistry()
{
	TheRegistry = nullptr;
}

void FAssetRegistry::AssetCreated(UObject* NewAsset)
{
	if (!IsAsset(NewAsset) || Find(NewAsset) != INDEX_NONE)
	{
		return;
	}
	const FAssetData Asset(NewAsset);
	Assets.Add(Asset);
	AssetAddedEvent.Broadcast(Asset);
}

void FAssetRegistry::AssetDeleted(UObject* DeletedAsset)
{
	const int32 Index = Find(DeletedAsset);
	if (Index != INDEX_NONE)
	{
		Assets.RemoveAt(Index);
	}
}

bool FAssetRegistry::GetAllAssets(TArray<FAssetData>& OutAssetData) const
{
	OutAssetData.Append(Assets);
	return Assets.Num() > 0;
}

IAssetRegistry::FAssetAddedEvent& FAssetRegistry::OnAssetAdded()
{
	return AssetAddedEvent;
}

int32 FAssetRegistry::Find(const FAssetData& Asset) const
{
	return Assets.IndexOfByPredicate([&Asset](const FAssetData& Known)
		{ return Known.PackageName == Asset.PackageName && Known.AssetName == Asset.AssetName; });
}
