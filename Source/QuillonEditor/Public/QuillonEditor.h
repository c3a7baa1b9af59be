// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Modules/ModuleInterface.h"

class FSpawnTabArgs;
class SCineStreamWizard;
class SDockTab;

/**
 * The editor module's single entry point: wires the plugin's tools into the editor when it starts and takes them out
 * when it shuts down. Created by the module manager through the exported factory InitializeModule; each of the two runs
 * once a load, on the game thread.
 */
class FQuillonEditorModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	/** Registers the nomad tab that holds the wizard. */
	void RegisterWizardTab();

	/** Makes the wizard's tab, each time that the tab manager asks for it. */
	TSharedRef<SDockTab> OnSpawnPluginTab(const FSpawnTabArgs& SpawnTabArgs);

	/** The wizard that somebody still holds, with its page and its stream name, or a new one. */
	TSharedRef<SCineStreamWizard> GetOrCreateWizard();

	/** The wizard that was placed in the tab last. Weak: a wizard lives as long as a tab shows it. */
	TWeakPtr<SCineStreamWizard> WizardWidget;
};
