// Copyright Corvane. MIT License.
#include "CreateCommand.h"

#include "CreateReport.h"
#include "StandardOutput.h"

#include "CreateJob.h"
#include "EngineText.h"
#include "LevelFile.h"
#include "StandaloneEditor.h"

namespace
{
	/** Everything but the answer. @return false with a line on failure that is not the job's own. */
	bool RunInEditor(
		FStandaloneEditor& Editor, const FCreateOptions& Options, FCreateReport& OutReport, std::string& OutError)
	{
		FStandaloneEditorOptions EditorOptions;
		EditorOptions.ProjectDir = Options.ProjectDir.value_or(std::string());
		if (!Editor.Start(EditorOptions, OutError) ||
			(Options.LevelFile && !FLevelFile::Open(*Options.LevelFile, OutError)) ||
			!FCreateJob(Editor).Run(FEngineText::FromUtf8(Options.Name), OutReport, OutError))
		{
			return false;
		}
		if (!OutReport.Setup || !Options.SaveFile)
		{
			return true;
		}
		OutReport.SavedTo = Options.SaveFile;
		return FLevelFile::Save(*Options.SaveFile, OutError);
	}
}

EExitStatus FCreateCommand::Run(const FCreateOptions& Options)
{
	FCreateReport Report;
	std::string Error;
	FStandaloneEditor Editor;
	if (!RunInEditor(Editor, Options, Report, Error))
	{
		FStandardOutput::WriteError(Error);
		return EExitStatus::BadInput;
	}
	if (!FStandardOutput::Write(Options.bJson ? Report.ToJson() : Report.ToText()))
	{
		return EExitStatus::BadInput;
	}
	return Report.Setup ? EExitStatus::Done : EExitStatus::JobFailed;
}
