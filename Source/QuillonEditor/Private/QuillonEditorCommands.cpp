// Copyright Corvane. MIT License.
#include "QuillonEditorCommands.h"

#include "Framework/Commands/InputChord.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Textures/SlateIcon.h"

#include "QuillonEditorStyle.h"

#define LOCTEXT_NAMESPACE "FQuillonEditorModule"

FQuillonEditorCommands::FQuillonEditorCommands()
	: TCommands<FQuillonEditorCommands>(TEXT("QuillonEditor"),
		  NSLOCTEXT("Contexts", "QuillonEditor", "ZAVQuillon Plugin"), NAME_None,
		  FQuillonEditorStyle::GetStyleSetName())
{}

// Not the UI_COMMAND macro: it would put the texts into a namespace of its own, where no translator of this plugin
// looks for them. The text gatherer reads literals only, so each row spells out both of its keys.
// clang-format off
void FQuillonEditorCommands::RegisterCommands()
{
	struct FRow
	{
		TSharedPtr<FUICommandInfo>& Command;
		const TCHAR* Name;
		FText Label;
		FText ToolTip;
		EUserInterfaceActionType Type;
	};
	const FRow Rows[] = {
		{UseCineStreamSetupWizard, TEXT("UseCineStreamSetupWizard"),
			LOCTEXT("UseCineStreamSetupWizard", "Cine Stream Wizard"),
			LOCTEXT("UseCineStreamSetupWizard_ToolTip",
				"Use to create a simple Cinecam Capture and Spout setup to stream out of ue4"),
			EUserInterfaceActionType::Button},
		{EditorViewportRendering, TEXT("EditorViewportRendering"),
			LOCTEXT("EditorViewportRendering", "Editor Viewport Rendering"),
			LOCTEXT("EditorViewportRendering_ToolTip", "Switch on/off viewport rendering at Editor/SIE time"),
			EUserInterfaceActionType::ToggleButton},
		{RuntimeViewportRendering, TEXT("RuntimeViewportRendering"),
			LOCTEXT("RuntimeViewportRendering", "Runtime Viewport Rendering"),
			LOCTEXT("RuntimeViewportRendering_ToolTip", "Switch on/off viewport rendering at PIE/Game time"),
			EUserInterfaceActionType::ToggleButton},
		{PluginVersion, TEXT("PluginVersion"),
			LOCTEXT("PluginVersion", "Plugin Version"),
			LOCTEXT("PluginVersion_ToolTip", "See your plugin version here"),
			EUserInterfaceActionType::Button},
		{KnowledgeCentre, TEXT("KnowledgeCentre"),
			LOCTEXT("KnowledgeCentre", "Knowledge Centre"),
			LOCTEXT("KnowledgeCentre_ToolTip", "Installation and feature documentation"),
			EUserInterfaceActionType::Button},
		{CorvaneWebsite, TEXT("CorvaneWebsite"),
			LOCTEXT("CorvaneWebsite", "Corvane Website"),
			LOCTEXT("CorvaneWebsite_ToolTip", "Corvane"),
			EUserInterfaceActionType::Button},
		{DiscordCommunity, TEXT("DiscordCommunity"),
			LOCTEXT("DiscordCommunity", "Discord Community"),
			LOCTEXT("DiscordCommunity_ToolTip", "Corvane Discord community"),
			EUserInterfaceActionType::Button},
		{VideoTutorials, TEXT("VideoTutorials"),
			LOCTEXT("VideoTutorials", "Video Tutorials"),
			LOCTEXT("VideoTutorials_ToolTip", "YouTube video tutorials"),
			EUserInterfaceActionType::Button},
	};
	for (const FRow& Row : Rows)
	{
		FUICommandInfo::MakeCommandInfo(AsShared(), Row.Command, Row.Name, Row.Label, Row.ToolTip, FSlateIcon(),
			Row.Type, FInputChord(), FInputChord());
	}
}
// clang-format on

#undef LOCTEXT_NAMESPACE
