// Copyright Corvane. MIT License.
#include "CreateCommand.h"

#include "CreateReport.h"
#include "StandardOutput.h"

#include "CreateJob.h"
#include "EditorView.h"
#include "EngineText.h"
#include "LevelFile.h"
#include "StandaloneEditor.h"

namespace
{
	bool PrintReport(const FCreateOptions& Options, const FCreateReport& Report)
	{
		return FStandardOutput::Write(Options.bJson ? Report.ToJson() : Report.ToText());
	}

	/** The window as it looks when the job is done, taken where nobody sees it. */
	bool SaveScreenshot(FStandaloneEditor& Editor, const std::string& File, std::string& OutError)
	{
		const std::unique_ptr<IEditorView> View = IEditorView::Make(EEditorViewUse::Script, OutError);
		if (!View)
		{
			return false;
		}
		View->Attach(Editor);
		View->Update();
		const bool bSaved = View->SaveScreenshot(File, std::string(), OutError);
		View->Detach();
		return bSaved;
	}

	/** @return false on failure that is not the job's own, with a line unless it was printed already. */
	bool RunInEditor(
		FStandaloneEditor& Editor, const FCreateOptions& Options, FCreateReport& OutReport, std::string& OutError)
	{
		FStandaloneEditorOptions EditorOptions;
		EditorOptions.ProjectDir = Options.ProjectDir.value_or(std::string());
		EditorOptions.SavedDir = Options.SavedDir.value_or(std::string());
		if (!Editor.Start(EditorOptions, OutError) ||
			(Options.LevelFile && !FLevelFile::Open(*Options.LevelFile, OutError)) ||
			!FCreateJob(Editor).Run(FEngineText::FromUtf8(Options.Name), OutReport, OutError))
		{
			return false;
		}
		if (Options.ScreenshotFile && !SaveScreenshot(Editor, *Options.ScreenshotFile, OutError))
		{
			return false;
		}
		if (!OutReport.Setup || !Options.SaveFile)
		{
			return PrintReport(Options, OutReport);
		}
		OutReport.SavedTo = Options.SaveFile;
		// Nobody shall find a saved level whose making was reported as failed.
		return FLevelFile::Save(*Options.SaveFile, OutError, [&]() { return PrintReport(Options, OutReport); });
	}
}

EExitStatus FCreateCommand::Run(const FCreateOptions& Options)
{
	FCreateReport Report;
	std::string Error;
	FStandaloneEditor Editor;
	if (!RunInEditor(Editor, Options, Report, Error))
	{
		if (!Error.empty())
		{
			FStandardOutput::WriteError(Error);
		}
		return EExitStatus::BadInput;
	}
	return Report.Setup ? EExitStatus::Done : EExitStatus::JobFailed;
}
