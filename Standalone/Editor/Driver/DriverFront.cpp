// Copyright Corvane. MIT License.
#include "Driver/DriverFront.h"

#include "ErrorText.h"
#include "StandardOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "Driver/RequestTable.h"

namespace
{
	/** In bytes, without the line feed. */
	constexpr size_t MaxLine = size_t(16) << 20U;
	constexpr int BadInput = static_cast<int>(EExitStatus::BadInput);

	std::string GetInputName(const FDriveOptions& Options)
	{
		return Options.File.value_or("standard input");
	}

	int ReportErrno(const std::string& Name)
	{
		FStandardOutput::WriteError(FErrorText::ForFile(Name, std::strerror(errno)));
		return BadInput;
	}
}

int FDriverFront::Run()
{
	// A pipe to the worker would otherwise take the place of one that is closed.
	if (::fcntl(STDOUT_FILENO, F_GETFD) < 0)
	{
		return ReportErrno("standard output");
	}
	FDescriptor File(Options.File ? ::open(Options.File->c_str(), O_RDONLY | O_CLOEXEC)
								  : ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
	if (!File.IsOpen() || ::read(File.Get(), nullptr, 0) < 0)
	{
		return ReportErrno(GetInputName(Options));
	}
	FLineReader Input(std::move(File), MaxLine);
	return StartWorker() ? Play(Input) : BadInput;
}

int FDriverFront::Play(FLineReader& Input)
{
	std::string Line;
	int Status = 0;
	for (;;)
	{
		switch (Input.Next(Line, Worker.GetAnswers()))
		{
			case FLineReader::EResult::Line:
				if (!Answer(Line, Status))
				{
					return Status;
				}
				break;
			case FLineReader::EResult::TooLong:
				if (!FStandardOutput::Write(FRequestTable::Refuse("the line is longer than 16 MiB") + '\n'))
				{
					return BadInput;
				}
				break;
			case FLineReader::EResult::Failed:
				return ReportErrno(GetInputName(Options));
			default:
				return Worker.Finish();
		}
	}
}

bool FDriverFront::Answer(const std::string& Line, int& OutStatus)
{
	FWorkerProcess::EMark Mark = FWorkerProcess::EMark::GoesOn;
	std::string Text;
	if (!Worker.Ask(Line, Mark, Text))
	{
		// A request without an answer is no success, however the worker ended.
		const int Ended = Worker.Finish();
		OutStatus = Ended != 0 ? Ended : BadInput;
		return false;
	}
	if (Mark == FWorkerProcess::EMark::Restarts)
	{
		OutStatus = Worker.Finish();
		if (OutStatus != 0 || !StartWorker())
		{
			OutStatus = OutStatus != 0 ? OutStatus : BadInput;
			return false;
		}
	}
	OutStatus = BadInput;
	return FStandardOutput::Write(Text + '\n');
}

bool FDriverFront::StartWorker()
{
	std::string Error;
	if (Worker.Start(Options, Error))
	{
		return true;
	}
	FStandardOutput::WriteError("quillon-editor: " + Error);
	return false;
}
