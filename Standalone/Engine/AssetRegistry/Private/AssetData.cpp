// Copyright Corvane. MIT License.
#include "AssetRegistry/AssetData.h"

#include "UObject/Class.h"
#include "UObject/Package.h"

FAssetData::FAssetData(const UObject* InAsset)
{
	if (InAsset)
	{
		const FString Path = InAsset->GetPathName();
		ObjectPath = Path.Len() < NAME_SIZE ? FName(*Path) : FName();
		PackageName = InAsset->GetOutermost()->GetFName();
		AssetName = InAsset->GetFName();
		AssetClass = InAsset->GetClass()->GetFName();
	}
}

UObject* FAssetData::GetAsset() const
{
	UPackage* Package = IsValid() ? FindPackage(nullptr, *PackageName.ToString()) : nullptr;
	return Package ? FindObject<UObject>(Package, *AssetName.ToString()) : nullptr;
}
