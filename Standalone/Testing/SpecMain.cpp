// Copyright Corvane. MIT License.
// Runs the automation specs of the plugin: in an editor with the plugin's modules as they are built with their specs,
// each It as one GoogleTest case.
#include "AutomationBridge.h"
#include "StandaloneEditor.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>

int main(int ArgumentCount, char** Arguments)
{
	::testing::InitGoogleTest(&ArgumentCount, Arguments);
	FStandaloneEditorOptions Options;
	Options.ModuleDir = QUILLON_SPEC_MODULE_DIR;
	const FTemporaryFolder Saved;
	Options.SavedDir = Saved.File("");
	FStandaloneEditor Editor;
	std::string Error;
	if (!Editor.Start(Options, Error))
	{
		std::fprintf(stderr, "%s\n", Error.c_str());
		return 2;
	}
	if (FAutomationBridge::RegisterSpecs() == 0)
	{
		std::fprintf(stderr, "no specs in the modules of %s\n", Options.ModuleDir.c_str());
		return 2;
	}
	return RUN_ALL_TESTS();
}
