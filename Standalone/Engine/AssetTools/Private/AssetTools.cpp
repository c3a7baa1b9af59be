// Copyright Corvane. MIT License.
#include "AssetTools.h"

#include "AssetNames.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

void FAssetTools::CreateUniqueAssetName(
	const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName)
{
	OutPackageName = AssetNames::Sanitise(InBasePackageName + InSuffix);
	int32 Number;
	const FString Stem = AssetNames::SplitNumber(OutPackageName, Number);
	while (AssetNames::IsTaken(OutPackageName))
	{
		OutPackageName = Stem + FString::FromInt(++Number);
	}
	OutAssetName = AssetNames::LastPart(OutPackageName);
}

UObject* FAssetTools::CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass,
	UFactory* /*Factory*/, FName /*CallingContext*/)
{
	// Joined by hand: the path operator leaves an asset name's own leading slash alone, or not, by rules of its own.
	const FString Folder = PackagePath.EndsWith(TEXT("/")) ? PackagePath.LeftChop(1) : PackagePath;
	const FString PackageName = AssetNames::Sanitise(Folder + TEXT("/") + AssetName);
	const bool bIsClass = AssetClass && !AssetClass->HasAnyClassFlags(CLASS_Abstract);
	if (!bIsClass || !AssetNames::IsPossible(PackageName) || AssetNames::IsTaken(PackageName))
	{
		return nullptr;
	}
	UPackage* Package = CreatePackage(*PackageName);
	UObject* Asset = NewObject<UObject>(
		Package, AssetClass, FName(*AssetNames::LastPart(PackageName)), RF_Public | RF_Standalone | RF_Transactional);
	Asset->MarkPackageDirty();
	// The asset is there with or without a registry; to miss it is the caller's business.
	if (IAssetRegistry* Registry = IAssetRegistry::Get())
	{
		Registry->AssetCreated(Asset);
	}
	return Asset;
}
