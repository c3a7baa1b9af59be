// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Framework/Commands/Commands.h"

/**
 * The plugin's commands, as the menu shows them. None has a key binding. What they do is mapped by the module, onto its
 * own command list.
 */
class FQuillonEditorCommands : public TCommands<FQuillonEditorCommands>
{
public:
	FQuillonEditorCommands();

	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> UseCineStreamSetupWizard;
	TSharedPtr<FUICommandInfo> EditorViewportRendering;
	TSharedPtr<FUICommandInfo> RuntimeViewportRendering;
	TSharedPtr<FUICommandInfo> PluginVersion;
	TSharedPtr<FUICommandInfo> KnowledgeCentre;
	TSharedPtr<FUICommandInfo> CorvaneWebsite;
	TSharedPtr<FUICommandInfo> DiscordCommunity;
	TSharedPtr<FUICommandInfo> VideoTutorials;
};
