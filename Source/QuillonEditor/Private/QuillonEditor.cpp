// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"

#include "QuillonEditorStyle.h"
#include "QuillonEditorWizardTab.h"

// The order of both lists is part of the module's contract: what is registered first may be used by what follows.

void FQuillonEditorModule::StartupModule()
{
	// 1. The style set: tabs, menus and class icons name its brushes.
	FQuillonEditorStyle::Initialize();
	FQuillonEditorStyle::ReloadTextures();

	// 2. The wizard's tab.
	RegisterWizardTab();
}

void FQuillonEditorModule::ShutdownModule()
{
	// 1. The wizard's tab spawner, which is bound to this object.
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(QuillonEditorTabs::CineStreamWizard);

	// 2. The style set, last: whatever still showed one of its brushes is gone by now.
	FQuillonEditorStyle::Shutdown();
}

IMPLEMENT_MODULE(FQuillonEditorModule, QuillonEditor)
