// Copyright Corvane. MIT License.
#include "PlatformFeatures.h"

#include "Standalone/PlatformSaveGames.h"

namespace
{
	ISaveGameSystem* InstalledSaveGames = nullptr;
}

IPlatformFeaturesModule& IPlatformFeaturesModule::Get()
{
	static IPlatformFeaturesModule Module;
	return Module;
}

ISaveGameSystem* IPlatformFeaturesModule::GetSaveGameSystem()
{
	return InstalledSaveGames;
}

void FPlatformSaveGames::Install(ISaveGameSystem* System)
{
	InstalledSaveGames = System;
}
