// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

/** When in the start-up a module is loaded, earliest first. */
namespace ELoadingPhase
{
	enum Type
	{
		EarliestPossible,
		PostConfigInit,
		PostSplashScreen,
		PreEarlyLoadingScreen,
		PreLoadingScreen,
		PreDefault,
		Default,
		PostDefault,
		PostEngineInit,
		/** Loaded by those who need it, never by itself. */
		None,
		/** How many there are; also "no such phase". */
		Max
	};

	/** The phase of a descriptor's "LoadingPhase", in any letter case; Max if there is none of that name. */
	PROJECTS_API Type FromString(const TCHAR* Text);
}

/** In which kinds of program a module is used. */
namespace EHostType
{
	enum Type
	{
		Runtime,
		RuntimeNoCommandlet,
		RuntimeAndProgram,
		CookedOnly,
		UncookedOnly,
		Developer,
		DeveloperTool,
		Editor,
		EditorNoCommandlet,
		EditorAndProgram,
		Program,
		ServerOnly,
		ClientOnly,
		ClientOnlyNoCommandlet,
		/** How many there are; also "no such type". */
		Max
	};

	/** The type of a descriptor's "Type", in any letter case; Max if there is none of that name. */
	PROJECTS_API Type FromString(const TCHAR* Text);
}

/** One entry of a plugin's "Modules". */
struct FModuleDescriptor
{
	FName Name;
	EHostType::Type Type = EHostType::Runtime;
	ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;
	/**
	 * The platforms that the module is shipped for; empty means all. Kept as information only: this engine loads a
	 * plugin's modules wherever it was built itself, since trying out a module away from its platform is what it is
	 * for.
	 */
	TArray<FString> WhitelistPlatforms;
};
