// Copyright Corvane. MIT License.
#include "AssetRegistry/AssetRegistryModule.h"

#include "AssetRegistry.h"
#include "Modules/ModuleManager.h"

void FAssetRegistryModule::StartupModule()
{
	Registry = MakeUnique<FAssetRegistry>();
}

void FAssetRegistryModule::ShutdownModule()
{
	Registry.Reset();
}

void FAssetRegistryModule::AssetCreated(UObject* NewAsset)
{
	IAssetRegistry::GetChecked().AssetCreated(NewAsset);
}

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)
