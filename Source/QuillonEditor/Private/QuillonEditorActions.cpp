// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/PlatformProcess.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/MessageDialog.h"
#include "PluginDescriptor.h"

#include "QuillonEditorCommands.h"
#include "QuillonEditorWizardTab.h"
#include "ZAVPROBlueprintFunctionLibrary.h"

// What the plugin's commands do.

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

namespace
{
	/** The pages of the menu's Support section. The domain is a reserved one, so that nobody is sent to a stranger. */
	struct FSupportPages
	{
		const TCHAR* KnowledgeCentre = TEXT("https://docs.corvane.example/#/");
		const TCHAR* CorvaneWebsite = TEXT("https://www.corvane.example/");
		const TCHAR* DiscordCommunity = TEXT("https://chat.corvane.example/invite/quillon");
		const TCHAR* VideoTutorials = TEXT("https://video.corvane.example/channel/corvane");
	};

	void OpenSupportPage(const FString& Address)
	{
		FPlatformProcess::LaunchURL(*Address, nullptr, nullptr);
	}
}

void FQuillonEditorModule::MapCommands()
{
	using FModule = FQuillonEditorModule;
	const FQuillonEditorCommands& Commands = FQuillonEditorCommands::Get();
	PluginCommands = MakeShared<FUICommandList>();

	PluginCommands->MapAction(
		Commands.UseCineStreamSetupWizard, FExecuteAction::CreateRaw(this, &FModule::OpenWizardTab));
	PluginCommands->MapAction(Commands.EditorViewportRendering,
		FExecuteAction::CreateRaw(this, &FModule::ToggleEditorViewportRendering),
		FCanExecuteAction::CreateRaw(this, &FModule::CanToggleViewportRendering),
		FIsActionChecked::CreateRaw(this, &FModule::IsEditorViewportRendering));
	PluginCommands->MapAction(Commands.RuntimeViewportRendering,
		FExecuteAction::CreateRaw(this, &FModule::ToggleRuntimeViewportRendering),
		FCanExecuteAction::CreateRaw(this, &FModule::CanToggleViewportRendering),
		FIsActionChecked::CreateRaw(this, &FModule::IsRuntimeViewportRendering));
	PluginCommands->MapAction(
		Commands.PluginVersion, FExecuteAction::CreateRaw(this, &FModule::ShowPluginVersionDialog));
	PluginCommands->MapAction(Commands.KnowledgeCentre, FExecuteAction::CreateRaw(this, &FModule::OpenKnowledgeCentre));
	PluginCommands->MapAction(Commands.CorvaneWebsite, FExecuteAction::CreateRaw(this, &FModule::OpenCorvaneWebsite));
	PluginCommands->MapAction(
		Commands.DiscordCommunity, FExecuteAction::CreateRaw(this, &FModule::OpenDiscordCommunity));
	PluginCommands->MapAction(Commands.VideoTutorials, FExecuteAction::CreateRaw(this, &FModule::OpenVideoTutorials));
}

void FQuillonEditorModule::OpenWizardTab()
{
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(QuillonEditorTabs::CineStreamWizard));
}

void FQuillonEditorModule::ToggleEditorViewportRendering()
{
	UZAVPROBlueprintFunctionLibrary::ToggleEditorViewportRendering();
}

bool FQuillonEditorModule::IsEditorViewportRendering() const
{
	return UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering();
}

void FQuillonEditorModule::ToggleRuntimeViewportRendering()
{
	UZAVPROBlueprintFunctionLibrary::ToggleRuntimeViewportRendering();
}

bool FQuillonEditorModule::IsRuntimeViewportRendering() const
{
	return UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering();
}

bool FQuillonEditorModule::CanToggleViewportRendering() const
{
	return true;
}

void FQuillonEditorModule::ShowPluginVersionDialog()
{
	FString PluginVersion;
	FString EngineVersion;
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("ZAVQuillon"));
	if (Plugin.IsValid())
	{
		PluginVersion = Plugin->GetDescriptor().VersionName;
		EngineVersion = Plugin->GetDescriptor().EngineVersion;
	}
	// The blank before the line break belongs to the established text: translations are looked up by the whole of it.
	const FText Message = FText::Format(LOCTEXT("PluginButtonDialogText", "Plugin Version: {0} \nEngine Version: {1}"),
		FText::FromString(PluginVersion), FText::FromString(EngineVersion));
	FMessageDialog::Open(EAppMsgType::Ok, Message);
}

void FQuillonEditorModule::OpenKnowledgeCentre()
{
	OpenSupportPage(FSupportPages().KnowledgeCentre);
}

void FQuillonEditorModule::OpenCorvaneWebsite()
{
	OpenSupportPage(FSupportPages().CorvaneWebsite);
}

void FQuillonEditorModule::OpenDiscordCommunity()
{
	OpenSupportPage(FSupportPages().DiscordCommunity);
}

void FQuillonEditorModule::OpenVideoTutorials()
{
	OpenSupportPage(FSupportPages().VideoTutorials);
}

#undef LOCTEXT_NAMESPACE
