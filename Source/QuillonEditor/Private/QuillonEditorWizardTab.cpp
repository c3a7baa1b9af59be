// Copyright Corvane. MIT License.
#include "QuillonEditorWizardTab.h"

#include "Framework/Docking/TabManager.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"

#include "QuillonEditor.h"
#include "QuillonEditorStyle.h"
#include "SCineStreamWizard.h"

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

void FQuillonEditorModule::RegisterWizardTab()
{
	// No automatic menu entry: the tab opens from the plugin's own menu only.
	FGlobalTabmanager::Get()
		->RegisterNomadTabSpawner(
			QuillonEditorTabs::CineStreamWizard, FOnSpawnTab::CreateRaw(this, &FQuillonEditorModule::OnSpawnPluginTab))
		.SetDisplayName(LOCTEXT("CineStreamWizardTitle", "Cine Stream Wizard"))
		.SetTooltipText(LOCTEXT("CineStreamWizardTooltipText", "Open the Cine Stream Wizard tab."))
		.SetAutoGenerateMenuEntry(false)
		.SetIcon(FSlateIcon(FQuillonEditorStyle::GetStyleSetName(), "ZAVQuillon.WizardIcon_16x"));
}

TSharedRef<SDockTab> FQuillonEditorModule::OnSpawnPluginTab(const FSpawnTabArgs& /*SpawnTabArgs*/)
{
	const TSharedRef<SDockTab> Tab = SNew(SDockTab).TabRole(ETabRole::NomadTab);
	Tab->SetContent(GetOrCreateWizard());
	return Tab;
}

TSharedRef<SCineStreamWizard> FQuillonEditorModule::GetOrCreateWizard()
{
	const TSharedPtr<SCineStreamWizard> Living = WizardWidget.Pin();
	if (Living.IsValid())
	{
		return Living.ToSharedRef();
	}
	const TSharedRef<SCineStreamWizard> Wizard = SNew(SCineStreamWizard);
	WizardWidget = Wizard;
	return Wizard;
}

#undef LOCTEXT_NAMESPACE
