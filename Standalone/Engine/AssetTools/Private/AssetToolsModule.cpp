// Copyright Corvane. MIT License.
#include "AssetToolsModule.h"

#include "AssetTools.h"
#include "Modules/ModuleManager.h"

void FAssetToolsModule::StartupModule()
{
	AssetTools = MakeUnique<FAssetTools>();
}

void FAssetToolsModule::ShutdownModule()
{
	AssetTools.Reset();
}

IAssetTools& FAssetToolsModule::Get() const
{
	check(AssetTools.IsValid());
	return *AssetTools;
}

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)
