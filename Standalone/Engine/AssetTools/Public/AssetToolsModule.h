// Copyright Corvane. MIT License.
#pragma once

#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"

/** Owns the asset tools. A module that stands in for this one derives from it and gives its own. */
class ASSETTOOLS_API FAssetToolsModule : public IModuleInterface
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	virtual IAssetTools& Get() const;

private:
	TUniquePtr<IAssetTools> AssetTools;
};
