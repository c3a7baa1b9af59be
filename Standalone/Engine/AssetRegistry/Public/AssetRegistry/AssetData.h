// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class UObject;

/** Names an asset without holding it. */
struct ASSETREGISTRY_API FAssetData
{
	/** "/Game/CineStream/Main.Main"; none if that is longer than a name may be, where package and asset name are still
	 * set. */
	FName ObjectPath;
	FName PackageName;
	FName AssetName;
	/** The class's name without prefix letter. */
	FName AssetClass;

	/** Names nothing. */
	FAssetData() = default;
	/** Names any object that lies in a package, classes included; nothing if null. */
	FAssetData(const UObject* InAsset);

	/** Whether it names anything. */
	bool IsValid() const { return !PackageName.IsNone(); }
	/** The asset, or null if there is none of that name (any more). */
	UObject* GetAsset() const;
};
