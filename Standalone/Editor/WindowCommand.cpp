// Copyright Corvane. MIT License.
#include "WindowCommand.h"

#include "EditorView.h"
#include "LevelFile.h"
#include "StandaloneEditor.h"
#include "StandardOutput.h"

namespace
{
	bool RunInWindow(const FWindowOptions& Options, std::string& OutError)
	{
		// First, as without a display nothing else is worth starting.
		const std::unique_ptr<IEditorView> View = IEditorView::Make(EEditorViewUse::Person, OutError);
		if (!View)
		{
			return false;
		}
		FStandaloneEditorOptions EditorOptions;
		EditorOptions.ProjectDir = Options.ProjectDir.value_or(std::string());
		EditorOptions.SavedDir = Options.SavedDir.value_or(std::string());
		FStandaloneEditor Editor;
		if (!Editor.Start(EditorOptions, OutError) ||
			(Options.LevelFile && !FLevelFile::Open(*Options.LevelFile, OutError)))
		{
			return false;
		}
		View->Attach(Editor);
		View->Run(Options.LevelFile.value_or(std::string()));
		View->Detach();
		return true;
	}
}

EExitStatus FWindowCommand::Run(const FWindowOptions& Options)
{
	std::string Error;
	if (!RunInWindow(Options, Error))
	{
		FStandardOutput::WriteError(Error);
		return EExitStatus::BadInput;
	}
	return EExitStatus::Done;
}
