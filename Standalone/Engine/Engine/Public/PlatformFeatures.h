// Copyright Corvane. MIT License.
#pragma once

#include "Modules/ModuleInterface.h"

class ISaveGameSystem;

/** What differs from platform to platform. */
class ENGINE_API IPlatformFeaturesModule : public IModuleInterface
{
public:
	static IPlatformFeaturesModule& Get();

	/** Where save games go; null where none can be saved. */
	virtual ISaveGameSystem* GetSaveGameSystem() { return SaveGames; }

	/**
	 * The stand-alone engine has no platform that keeps save games by itself: the program brings one, which stays its
	 * own, or goes without.
	 */
	void SetSaveGameSystem(ISaveGameSystem* System) { SaveGames = System; }

private:
	ISaveGameSystem* SaveGames = nullptr;
};
