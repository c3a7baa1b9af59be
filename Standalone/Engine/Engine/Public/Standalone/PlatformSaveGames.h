// Copyright Corvane. MIT License.
#pragma once

class ISaveGameSystem;

/** The stand-alone engine has no platform that keeps save games by itself: the program brings one, or goes without. */
struct ENGINE_API FPlatformSaveGames
{
	/** From now on save games go to System, which stays the caller's; null for nowhere, as at first. */
	static void Install(ISaveGameSystem* System);
};
