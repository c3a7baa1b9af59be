// Copyright Corvane. MIT License.
#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"

/** Owns the registry. */
class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	/** Tells the registry of a new asset. Fatal while the module is not loaded. */
	static void AssetCreated(UObject* NewAsset);

private:
	TUniquePtr<IAssetRegistry> Registry;
};
