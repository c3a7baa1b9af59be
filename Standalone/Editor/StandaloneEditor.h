// Copyright Corvane. MIT License.
#pragma once

#include <memory>
#include <string>

#include "CoreMinimal.h"
#include "ViewportSet.h"

class FDetailsPanel;
class FLevelEditorViewportClient;
class FLevelToolBar;
class FSaveGameFolder;
class UClass;
class UWorld;

/** How the editor starts. Paths are UTF-8. */
struct FStandaloneEditorOptions
{
	/** The folder that holds the plugin's descriptor; by default the one that this program was built from. */
	std::string ProjectDir;
	/** A folder of modules' libraries that goes before the program's own. */
	std::string ModuleDir;
	/** Where save games go, which need not exist; without it none can be saved. */
	std::string SavedDir;
	/** Without the plugin only the engine starts. */
	bool bLoadPlugin = true;
	/** Without it there are no viewports and no clients. */
	bool bOpenViewport = true;
	/** The class of GEditor, a UEditorEngine; null for that itself. */
	UClass* (*GetEditorClass)() = nullptr;
};

/**
 * The engine and the plugin in one process, without a window: two worlds, of which the second stays empty, and a
 * viewport on the first, which is active.
 *
 * One editor at a time; after one was shut down another can be started in the same process. Its objects are gone with
 * it.
 */
class FStandaloneEditor
{
public:
	FStandaloneEditor();
	FStandaloneEditor(const FStandaloneEditor&) = delete;
	FStandaloneEditor& operator=(const FStandaloneEditor&) = delete;
	/** Shuts the editor down if it runs. */
	~FStandaloneEditor();

	/**
	 * @return false, with everything undone, if the plugin can't be found or loaded, or save games could go nowhere;
	 * OutError is then one line.
	 */
	bool Start(const FStandaloneEditorOptions& Options, std::string& OutError);

	/** Ends in the engine's order: what is open first, then the modules, then worlds and editor, then all objects. */
	void Shutdown();

	/** Lets the editor do what is due, then collects garbage; never from within a call of engine or plugin. */
	void Tick();

	/** @return 0: the world of the open level, which changes when another is opened; 1: the second one. */
	UWorld* GetWorld(int32 Index) const;

	/** The world beside the level's is empty at first, and has to be again with each other level. */
	void EmptySecondWorld();

	FViewportSet& GetViewports() { return Viewports; }

	/** The client of the one viewport that the editor starts with; fatal if it was told to start without. */
	FLevelEditorViewportClient& GetLevelClient() const { return Viewports.GetClient(0); }

	/** The details of what is selected. */
	FDetailsPanel& GetDetails() { return *Details; }

	/** The editor's own buttons on the level editor's toolbar. */
	FLevelToolBar& GetToolBar() { return *ToolBar; }

	/** Closes what modules have opened or laid out, as none of them may be unloaded before. */
	void ClosePanels();

private:
	void StartEngine(const FStandaloneEditorOptions& Options);
	bool StartPlugin(const FStandaloneEditorOptions& Options, std::string& OutError);

	std::unique_ptr<FSaveGameFolder> SaveGames;
	FViewportSet Viewports;
	std::unique_ptr<FDetailsPanel> Details;
	std::unique_ptr<FLevelToolBar> ToolBar;
	UWorld* SecondWorld = nullptr;
	bool bRunning = false;
};
