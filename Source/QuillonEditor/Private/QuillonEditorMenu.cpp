// Copyright Corvane. MIT License.
#include "QuillonEditor.h"

#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"

#include "QuillonEditorCommands.h"
#include "QuillonEditorStyle.h"

// The button on the level editor's toolbar and the menu below it.

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

void FQuillonEditorModule::RegisterMenus()
{
	// Shut-down removes by this owner whatever is added while the scope is open.
	const FToolMenuOwnerScoped Owner(this);
	UToolMenu* ToolBar = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar");
	FToolMenuSection& Section = ToolBar->FindOrAddSection("Settings");

	// Label and tooltip carry the same text on purpose. The tooltip's key is misspelt and stays so, as translators look
	// the text up by it. The brush's name differs in letter case from the style set's, which names ignore.
	Section.AddEntry(FToolMenuEntry::InitComboButton("Corvane", FUIAction(),
		FOnGetContent::CreateRaw(this, &FQuillonEditorModule::GenerateMenuContent, PluginCommands),
		LOCTEXT("CorvaneBtn", "Corvane"), LOCTEXT("CorvaneBtnTootlip", "Corvane"),
		FSlateIcon(FQuillonEditorStyle::GetStyleSetName(), "ZAVQuillOn.PluginTaskbarIcon"), false));
}

TSharedRef<SWidget> FQuillonEditorModule::GenerateMenuContent(TSharedPtr<FUICommandList> Commands)
{
	const FQuillonEditorCommands& Plugin = FQuillonEditorCommands::Get();
	FMenuBuilder Menu(true, Commands, TSharedPtr<FExtender>(), false, &FCoreStyle::Get(), true, NAME_None);

	// Of the headings only this one is translated. The others are established as plain strings, and so are the wizard's
	// label and tooltip: they show these words in every language, whatever the command's own texts are translated to.
	Menu.BeginSection(NAME_None, LOCTEXT("ToolsSection", "Tools"));
	Menu.AddMenuEntry(Plugin.UseCineStreamSetupWizard, NAME_None, FText::FromString(TEXT("Cine Stream Wizard")),
		FText::FromString(TEXT("Use to create a simple Cinecam Capture and Spout setup to stream out of ue4")),
		FSlateIcon(FQuillonEditorStyle::GetStyleSetName(), "ZAVQuillon.WizardIcon_16x"));
	Menu.EndSection();

	Menu.BeginSection("SettingsSection", FText::FromString(TEXT("Settings")));
	Menu.AddMenuEntry(Plugin.EditorViewportRendering);
	Menu.AddMenuEntry(Plugin.RuntimeViewportRendering);
	Menu.EndSection();

	Menu.BeginSection("AccountSection", FText::FromString(TEXT("Account")));
	Menu.AddMenuEntry(Plugin.PluginVersion);
	Menu.EndSection();

	// The hook's blank stays: extensions of this menu name it so. The entries stand in the menu's own order, not in
	// that of the commands.
	Menu.BeginSection("Support Section", FText::FromString(TEXT("Support")));
	Menu.AddMenuEntry(Plugin.KnowledgeCentre);
	Menu.AddMenuEntry(Plugin.VideoTutorials);
	Menu.AddMenuEntry(Plugin.DiscordCommunity);
	Menu.AddMenuEntry(Plugin.CorvaneWebsite);
	Menu.EndSection();

	return Menu.MakeWidget(nullptr, 1000);
}

#undef LOCTEXT_NAMESPACE
