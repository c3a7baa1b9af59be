// Copyright Corvane. MIT License.
#pragma once

#include "AssetRegistry/IAssetRegistry.h"

/** The registry: a list, as all assets are in memory. */
class FAssetRegistry : public IAssetRegistry
{
public:
	/** Makes itself the one that IAssetRegistry::Get gives, until it is deleted. */
	FAssetRegistry();
	~FAssetRegistry() override;

	void AssetCreated(UObject* NewAsset) override;
	void AssetDeleted(UObject* DeletedAsset) override;
	bool GetAllAssets(TArray<FAssetData>& OutAssetData) const override;
	FAssetAddedEvent& OnAssetAdded() override;

private:
	int32 Find(const FAssetData& Asset) const;

	TArray<FAssetData> Assets;
	FAssetAddedEvent AssetAddedEvent;
};
