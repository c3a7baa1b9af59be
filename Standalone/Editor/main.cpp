// Copyright Corvane. MIT License.
#include "CommandLine.h"
#include "CreateCommand.h"
#include "Driver/DriverFront.h"
#include "Driver/DriverWorker.h"
#include "StandardOutput.h"
#include "WindowCommand.h"

#include <csignal>

int main(int ArgumentCount, char** Arguments)
{
	// A write beyond a limit or into a closed pipe shall fail with an error that can be reported, not end the program.
	std::signal(SIGXFSZ, SIG_IGN);
	std::signal(SIGPIPE, SIG_IGN);
	const FCommandLine CommandLine = FCommandLine::Parse(ArgumentCount, Arguments);
	if (CommandLine.Create)
	{
		return static_cast<int>(FCreateCommand::Run(*CommandLine.Create));
	}
	if (CommandLine.Drive)
	{
		return CommandLine.Drive->bWorker ? FDriverWorker::Run(*CommandLine.Drive)
										  : FDriverFront(*CommandLine.Drive).Run();
	}
	if (CommandLine.Window)
	{
		return static_cast<int>(FWindowCommand::Run(*CommandLine.Window));
	}
	if (!CommandLine.ErrorLine.empty())
	{
		FStandardOutput::WriteError(CommandLine.ErrorLine);
		return static_cast<int>(CommandLine.Status);
	}
	return static_cast<int>(FStandardOutput::Write(CommandLine.Output) ? CommandLine.Status : EExitStatus::BadInput);
}
