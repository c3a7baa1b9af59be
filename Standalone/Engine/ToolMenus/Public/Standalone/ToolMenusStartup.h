// Copyright Corvane. MIT License.
#pragma once

#include "ToolMenuOwner.h"

/** The begin and end of the menus' time. The real engine does both itself, as its editor starts and exits. */
class TOOLMENUS_API FToolMenusStartup
{
public:
	/** From now on menus can be extended: runs what waits for that, the last registered first. Fatal if they can. */
	static void Run();

	/** Drops all menus, which go with the next garbage collection, and whatever still waits. Run may follow again. */
	static void ShutDown();

	/** How many start-up callbacks wait. */
	static int32 GetStartupCallbackCount();

	/** How many owners have entries in any menu, this one not counted. */
	static int32 GetOwnerCount(const FToolMenuOwner& Apart = FToolMenuOwner());
};
