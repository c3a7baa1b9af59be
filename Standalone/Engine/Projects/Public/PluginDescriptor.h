// Copyright Corvane. MIT License.
#pragma once

#include "Internationalization/Text.h"
#include "ModuleDescriptor.h"

/** What a plugin says about itself in its .uplugin file. A field that the file leaves out keeps its default. */
struct FPluginDescriptor
{
	/** Counts up with each release; for comparing, not for showing. */
	int32 Version = 0;
	/** The release as users read it. */
	FString VersionName;
	FString FriendlyName;
	FString Description;
	/** The engine's version that a packaged plugin was built for; usually empty in a source tree. */
	FString EngineVersion;
	TArray<FModuleDescriptor> Modules;

	/**
	 * Reads a .uplugin file. Unknown fields are left alone.
	 * @param OutFailReason one line with the file and the place in it, when something is wrong.
	 * @return false if the file cannot be read, is no JSON or has a field of a wrong type; the descriptor is then
	 * unchanged.
	 */
	PROJECTS_API bool Load(const FString& FileName, FText& OutFailReason);
};
