// Copyright Corvane. MIT License.
#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

/** Knows all assets. There is one while the module AssetRegistry is loaded. */
class ASSETREGISTRY_API IAssetRegistry
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetAddedEvent, const FAssetData&)

		/** Null while the module is not loaded. */
		static IAssetRegistry* Get();
	/** Fatal while the module is not loaded. */
	static IAssetRegistry& GetChecked();

	virtual ~IAssetRegistry() {}

	/**
	 * To be called for each new asset. A second call for one asset changes nothing. What is no asset (null, not public,
	 * not directly in a package) is left out.
	 */
	virtual void AssetCreated(UObject* NewAsset) = 0;

	/** To be called before an asset is destroyed. */
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;

	/** Appends all assets in the order of their creation. @return false if there are none. */
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData) const = 0;

	/** Broadcast once for each new asset. */
	virtual FAssetAddedEvent& OnAssetAdded() = 0;
};
