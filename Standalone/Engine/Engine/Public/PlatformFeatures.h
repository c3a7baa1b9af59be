// Copyright Corvane. MIT License.
#pragma once

#include "Modules/ModuleInterface.h"

class ISaveGameSystem;

/** What differs from platform to platform. */
class ENGINE_API IPlatformFeaturesModule : public IModuleInterface
{
public:
	static IPlatformFeaturesModule& Get();

	/** Where save games go; null where none can be saved. See FPlatformSaveGames. */
	virtual ISaveGameSystem* GetSaveGameSystem();
};
