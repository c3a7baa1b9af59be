// Copyright Corvane. MIT License.
#include "Driver/DriverWorker.h"

#include "CommandLine.h"
#include "Driver/WorkerProcess.h"
#include "StandardOutput.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <limits>

#include "Driver/DriverSession.h"
#include "Driver/RequestTable.h"
#include "EditorView.h"

int FDriverWorker::Run(const FDriveOptions& Options)
{
	// A front that is killed takes the worker along, whatever that is busy with.
	::prctl(PR_SET_PDEATHSIG, SIGKILL);
	const FDescriptor Answers(FWorkerProcess::AnswersHandle);
	// The front keeps the limit.
	FLineReader Requests{FDescriptor(STDIN_FILENO), std::numeric_limits<size_t>::max()};
	FDriverSession Session;
	FStandaloneEditorOptions EditorOptions;
	EditorOptions.SavedDir = Options.SavedDir.value_or(std::string());
	std::string Error;
	std::unique_ptr<IEditorView> View;
	if (Options.bWindow)
	{
		View = IEditorView::Make(EEditorViewUse::Script, Error);
	}
	if ((Options.bWindow && !View) || !Session.Start(EditorOptions, Error, std::move(View)))
	{
		FStandardOutput::WriteError(Error);
		return static_cast<int>(EExitStatus::BadInput);
	}
	std::string Line;
	// The front ends the input, before a restart as well.
	while (Requests.Next(Line) == FLineReader::EResult::Line)
	{
		const std::string Answer = FRequestTable::Answer(Session, Line);
		const auto Mark =
			Session.IsRestartRequested() ? FWorkerProcess::EMark::Restarts : FWorkerProcess::EMark::GoesOn;
		if (!Answers.WriteAll(Answer + '\n' + static_cast<char>(Mark) + '\n'))
		{
			// The front is gone.
			return static_cast<int>(EExitStatus::BadInput);
		}
	}
	return static_cast<int>(EExitStatus::Done);
}
