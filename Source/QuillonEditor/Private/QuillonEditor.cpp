// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "Framework/Docking/TabManager.h"
#include "IPlacementModeModule.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "ToolMenus.h"

#include "AuthDelegates.h"
#include "DetailCustomisations/ActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "QuillonEditorCommands.h"
#include "QuillonEditorStyle.h"
#include "QuillonEditorWizardTab.h"

// The order of both lists is part of the module's contract: what is registered first may be used by what follows. The
// second is not the first reversed: what the user could still reach goes first.

// Other plugins may add items of their own under this handle.
FQuillonEditorModule::FQuillonEditorModule() : PlacementCategoryName(TEXT("Corvane")) {}

void FQuillonEditorModule::StartupModule()
{
	// 1. The style set: tabs, menus and class icons name its brushes.
	FQuillonEditorStyle::Initialize();
	FQuillonEditorStyle::ReloadTextures();

	// 2. The wizard's tab.
	RegisterWizardTab();

	// 3. The commands and what they do.
	FQuillonEditorCommands::Register();
	MapCommands();

	// 4. The toolbar, as soon as there is one. The handle is not kept: shut-down names this object as the owner.
	UToolMenus::RegisterStartupCallback(
		FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FQuillonEditorModule::RegisterMenus));

	// 5. Who lays out receivers and capture components in details panels.
	RegisterDetailCustomisations();

	// 6. What is remembered of a release that the user skipped.
	LoadUpgradeState();

	// 7. Announcements of newer releases, not before it is known which of them to pass over.
	UpgradeAvailableHandle =
		AuthDelegates::OnUpgradeAvailable.AddRaw(this, &FQuillonEditorModule::HandleUpgradeAvailable);

	// 8. The category of the Place Actors panel.
	RegisterPlacementCategory();
}

void FQuillonEditorModule::ShutdownModule()
{
	// 1. The placement category with its items. Its module may be gone already when the editor closes.
	if (FModuleManager::Get().IsModuleLoaded("PlacementMode"))
	{
		FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode")
			.UnregisterPlacementCategory(PlacementCategoryName);
	}

	// 2. Announcements, of which there may be more before this object is gone. The handle stays as it is, since each
	// start sets it anew.
	if (UpgradeAvailableHandle.IsValid())
	{
		AuthDelegates::OnUpgradeAvailable.Remove(UpgradeAvailableHandle);
	}

	// 3. The toolbar button, and the callback that would still add it.
	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);

	// 4. The commands. The command list dies with this object.
	FQuillonEditorCommands::Unregister();

	// 5. The wizard's tab spawner, which is bound to this object.
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(QuillonEditorTabs::CineStreamWizard);

	// 6. The style set, last: nothing that is registered names one of its brushes any more. What is still on screen, a
	// tab or a notification, does: an editor that goes on has to close it first.
	FQuillonEditorStyle::Shutdown();

	// The details layouts stay registered. Their factories are plain functions, which the library keeps: a panel that
	// is still open may ask for one, and the next start takes their place.
}

void FQuillonEditorModule::RegisterDetailCustomisations()
{
	FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	PropertyEditor.RegisterCustomPropertyTypeLayout("ZAVSpoutReceiverInterface",
		FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FActiveSenderNamesCustomisation::MakeInstance));
	PropertyEditor.RegisterCustomClassLayout("ZAVCaptureComponent",
		FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
	// Panels that are open already are to show them.
	PropertyEditor.NotifyCustomizationModuleChanged();
}

IMPLEMENT_MODULE(FQuillonEditorModule, QuillonEditor)
