// Copyright Corvane. MIT License.
#pragma once

#include "IAssetTools.h"

/** The asset tools: names and packages, without any windows. */
class FAssetTools : public IAssetTools
{
public:
	void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName,
		FString& OutAssetName) override;
	UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
		FName CallingContext) override;
};
