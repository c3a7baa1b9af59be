// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Modules/ModuleInterface.h"

class FSpawnTabArgs;
class FUICommandList;
class SCineStreamWizard;
class SDockTab;
class SNotificationItem;
class SWidget;
struct FPlacementCategoryInfo;

/**
 * The editor module's single entry point: wires the plugin's tools into the editor when it starts and takes them out
 * when it shuts down. Created by the module manager through the exported factory InitializeModule; each of the two runs
 * once a load, on the game thread.
 */
class FQuillonEditorModule : public IModuleInterface
{
public:
	FQuillonEditorModule();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	/** Registers the nomad tab that holds the wizard. */
	void RegisterWizardTab();

	/** Makes the wizard's tab, each time that the tab manager asks for it. */
	TSharedRef<SDockTab> OnSpawnPluginTab(const FSpawnTabArgs& SpawnTabArgs);

	/** The wizard that somebody still holds, with its page and its stream name, or a new one. */
	TSharedRef<SCineStreamWizard> GetOrCreateWizard();

	/** Maps the plugin's commands onto a new, empty command list. */
	void MapCommands();

	/** Brings the wizard's tab to the front, opening it first where needed. */
	void OpenWizardTab();

	/** The runtime module keeps both switches: what a menu shows as checked is asked there each time. */
	void ToggleEditorViewportRendering();
	bool IsEditorViewportRendering() const;
	void ToggleRuntimeViewportRendering();
	bool IsRuntimeViewportRendering() const;
	/** Always true: neither switch is ever refused. */
	bool CanToggleViewportRendering() const;

	/** Shows the version of the plugin and of the engine that it was made for, as its descriptor has them. */
	void ShowPluginVersionDialog();

	/** Each opens one page in the system's browser; a browser that does not start is not reported. */
	void OpenKnowledgeCentre();
	void OpenCorvaneWebsite();
	void OpenDiscordCommunity();
	void OpenVideoTutorials();

	/** Adds the plugin's button to the level editor's toolbar, once ToolMenus is up. */
	void RegisterMenus();

	/** The menu below the toolbar button, made anew each time that it opens. */
	TSharedRef<SWidget> GenerateMenuContent(TSharedPtr<FUICommandList> Commands);

	/** Has the property editor lay out the plugin's receivers and capture components in the module's own way. */
	void RegisterDetailCustomisations();

	/** Reads from the save slot which release the user skipped; what can't be read leaves all releases to be offered.
	 */
	void LoadUpgradeState();

	/** Writes bSkipVersion and OfferedVersion to the save slot; a save that fails is not reported. */
	void SaveUpgradeState();

	/** Offers an announced release, unless it is the one that the user skipped. */
	void HandleUpgradeAvailable(FString Version, FString DownloadAddress);

	/** Shows the notification with its three buttons, beside any earlier one. */
	void ShowUpgradeNotification(const FString& Version, const FString& DownloadAddress);

	/** Takes the notification shown last off the screen. Does nothing when it is gone already. */
	void CloseUpgradeNotification();

	/** What the notification's buttons do, before they close it: a browser that does not start is not reported. */
	void OnDownloadNowClicked(FString DownloadAddress);
	void OnRemindMeLaterClicked();
	void OnSkipVersionClicked();

	/** Adds the plugin's category to the Place Actors panel, or takes the one that is there, and fills it. */
	void RegisterPlacementCategory();

	/** Adds the plugin's three actors to the category. */
	void RegisterPlaceableItems(const FPlacementCategoryInfo* Category);

	/** The unique handle of the placement category. Never changes. */
	FName PlacementCategoryName;

	/**
	 * What the plugin's commands do. Not reset at shut-down. Its actions are bound raw to this object: a menu that
	 * shows it must be closed before the module goes.
	 */
	TSharedPtr<FUICommandList> PluginCommands;

	/** The subscription to announcements of newer releases. */
	FDelegateHandle UpgradeAvailableHandle;

	/** The wizard that was placed in the tab last. Weak: a wizard lives as long as a tab shows it. */
	TWeakPtr<SCineStreamWizard> WizardWidget;

	/** The notification that was shown last. Weak: it lives as long as it is on screen. */
	TWeakPtr<SNotificationItem> UpgradeNotification;

	/** Which release was offered last: the part of its download address after the last "/". */
	FString OfferedVersion;

	/** The user does not want to hear of that release again. */
	bool bSkipVersion = false;
};
