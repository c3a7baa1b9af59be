// Copyright Corvane. MIT License.
#include "Driver/WorkerProcess.h"

#include "StandardOutput.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <vector>

namespace
{
	struct FPipe
	{
		FDescriptor Read;
		FDescriptor Write;
	};

	bool MakePipe(FPipe& OutPipe)
	{
		std::array<int, 2> Handles{};
		if (::pipe2(Handles.data(), O_CLOEXEC) != 0)
		{
			return false;
		}
		OutPipe = {FDescriptor(Handles[0]), FDescriptor(Handles[1])};
		return true;
	}

	/** @return 0 or an error number. */
	int Spawn(const FDriveOptions& Options, const FDescriptor& Requests, const FDescriptor& Answers, pid_t& OutProcess)
	{
		std::vector<std::string> Arguments = {"quillon-editor", "drive-worker"};
		if (Options.bWindow)
		{
			Arguments.emplace_back("--view=qt");
		}
		if (Options.SavedDir)
		{
			Arguments.push_back("--saved=" + *Options.SavedDir);
		}
		std::vector<char*> Pointers;
		Pointers.reserve(Arguments.size() + 1);
		for (std::string& Argument : Arguments)
		{
			Pointers.push_back(Argument.data());
		}
		Pointers.push_back(nullptr);
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		// The requests' pipe may stand where the answers' shall be, so it goes first.
		posix_spawn_file_actions_adddup2(&Actions, Requests.Get(), STDIN_FILENO);
		posix_spawn_file_actions_adddup2(&Actions, Answers.Get(), FWorkerProcess::AnswersHandle);
		posix_spawn_file_actions_adddup2(&Actions, STDERR_FILENO, STDOUT_FILENO);
		const int Error = ::posix_spawn(&OutProcess, "/proc/self/exe", &Actions, nullptr, Pointers.data(), environ);
		posix_spawn_file_actions_destroy(&Actions);
		return Error;
	}
}

bool FWorkerProcess::Start(const FDriveOptions& Options, std::string& OutError)
{
	FPipe ToWorker;
	FPipe FromWorker;
	const bool bPiped = MakePipe(ToWorker) && MakePipe(FromWorker);
	const int Error = bPiped ? Spawn(Options, ToWorker.Read, FromWorker.Write, Process) : errno;
	if (Error != 0)
	{
		Process = -1;
		OutError = std::string("the editor's process can't be started: ") + std::strerror(Error);
		return false;
	}
	Requests = std::move(ToWorker.Write);
	Answers = std::make_unique<FLineReader>(std::move(FromWorker.Read), std::numeric_limits<size_t>::max());
	return true;
}

bool FWorkerProcess::Ask(const std::string& Line, EMark& OutMark, std::string& OutAnswer)
{
	std::string Mark;
	if (!Requests.WriteAll(Line + '\n') || Answers->Next(OutAnswer) != FLineReader::EResult::Line ||
		Answers->Next(Mark) != FLineReader::EResult::Line || Mark.size() != 1)
	{
		return false;
	}
	OutMark = static_cast<EMark>(Mark.front());
	return true;
}

int FWorkerProcess::Finish()
{
	if (Process < 0)
	{
		return 0;
	}
	Requests.Close();
	int Status = 0;
	while (::waitpid(Process, &Status, 0) < 0 && errno == EINTR)
	{}
	Process = -1;
	if (!WIFSIGNALED(Status))
	{
		return WEXITSTATUS(Status);
	}
	FStandardOutput::WriteError(
		std::string("quillon-editor: the editor was ended by a signal: ") + strsignal(WTERMSIG(Status)));
	return 128 + WTERMSIG(Status);
}
