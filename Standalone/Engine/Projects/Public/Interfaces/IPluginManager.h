// Copyright Corvane. MIT License.
#pragma once

#include "PluginDescriptor.h"
#include "Templates/SharedPointer.h"

/** A plugin that was found. */
class IPlugin
{
public:
	virtual ~IPlugin() {}

	/** The base name of the plugin's descriptor file. */
	virtual const FString& GetName() const = 0;

	/** The absolute path of the folder that holds the descriptor, without a slash at the end. */
	virtual FString GetBaseDir() const = 0;

	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/** Finds plugins and loads their modules. Every plugin that is found counts as enabled. */
class PROJECTS_API IPluginManager
{
public:
	static IPluginManager& Get();
	virtual ~IPluginManager() {}

	/** The plugin of that name, in any letter case, or null. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;

	/**
	 * Makes a folder one in which plugins are looked for: their .uplugin files stand in the folder itself or in the
	 * folders of its "Plugins" folder. Nothing is found before the next RefreshPluginsList unless bShouldRefresh.
	 * @return false if the folder was one already.
	 */
	virtual bool AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bShouldRefresh = true) = 0;

	/**
	 * Reads all descriptors anew. Of two plugins with one name the first found stays. A damaged descriptor is reported
	 * on standard error and left out.
	 */
	virtual void RefreshPluginsList() = 0;

	/** Begins anew, without plugins and search paths. The real engine's process is one editor: it has none. */
	virtual void ForgetPlugins() = 0;

	/**
	 * Loads the modules of all plugins that ask for this phase, those for every program before those for the editor,
	 * else in the descriptor's order. Modules that no editor uses are left out. Each failure is reported on standard
	 * error.
	 * @return whether all of them are loaded.
	 */
	virtual bool LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase) = 0;
};
