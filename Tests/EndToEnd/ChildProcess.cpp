// Copyright Corvane. MIT License.
#include "ChildProcess.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace
{
	using FPipe = std::array<int, 2>;

	FPipe MakePipe()
	{
		FPipe Pipe{-1, -1};
		EXPECT_EQ(::pipe2(Pipe.data(), O_CLOEXEC), 0);
		return Pipe;
	}

	[[noreturn]] void Become(const std::vector<std::string>& Arguments, const FChildProcess::FOptions& Options)
	{
		std::vector<char*> Pointers;
		for (const std::string& Argument : Arguments)
		{
			Pointers.push_back(const_cast<char*>(Argument.c_str()));
		}
		Pointers.push_back(nullptr);
		if (Options.FileSizeLimit)
		{
			rlimit Limit{};
			Limit.rlim_cur = *Options.FileSizeLimit;
			Limit.rlim_max = *Options.FileSizeLimit;
			::setrlimit(RLIMIT_FSIZE, &Limit);
		}
		if (!Options.Directory || ::chdir(Options.Directory->c_str()) == 0)
		{
			::execv(Pointers[0], Pointers.data());
		}
		::_exit(127);
	}

	/** Reads both pipes to their ends, whichever has something first, so that the program never waits for a full pipe.
	 */
	void ReadBoth(FPipe& Output, FPipe& Errors, FChildProcess& Process)
	{
		std::array<pollfd, 2> Polled{{{Output[0], POLLIN, 0}, {Errors[0], POLLIN, 0}}};
		std::array<std::string*, 2> Targets{&Process.Output, &Process.Errors};
		int Open = 2;
		while (Open > 0 && ::poll(Polled.data(), Polled.size(), -1) > 0)
		{
			for (size_t Index = 0; Index < Polled.size(); ++Index)
			{
				if (Polled[Index].fd < 0 || Polled[Index].revents == 0)
				{
					continue;
				}
				std::array<char, 65536> Buffer{};
				const ssize_t Count = ::read(Polled[Index].fd, Buffer.data(), Buffer.size());
				if (Count > 0)
				{
					Targets[Index]->append(Buffer.data(), static_cast<size_t>(Count));
					continue;
				}
				Polled[Index].fd = -1;
				--Open;
			}
		}
	}
}

FChildProcess FChildProcess::Run(const std::vector<std::string>& Arguments)
{
	return Run(Arguments, FOptions());
}

FChildProcess FChildProcess::Run(const std::vector<std::string>& Arguments, const FOptions& Options)
{
	std::vector<std::string> All = Arguments;
	All.insert(All.begin(), QUILLON_EDITOR_PROGRAM);
	FPipe Output = MakePipe();
	FPipe Errors = MakePipe();
	const pid_t Child = ::fork();
	if (Child == 0)
	{
		const int OutputFile = Options.OutputFile ? ::open(Options.OutputFile->c_str(), O_WRONLY) : Output[1];
		::dup2(OutputFile, STDOUT_FILENO);
		::dup2(Errors[1], STDERR_FILENO);
		Become(All, Options);
	}
	::close(Output[1]);
	::close(Errors[1]);
	FChildProcess Process;
	ReadBoth(Output, Errors, Process);
	::close(Output[0]);
	::close(Errors[0]);
	int Status = 0;
	EXPECT_EQ(::waitpid(Child, &Status, 0), Child);
	Process.Status = WIFEXITED(Status) ? WEXITSTATUS(Status) : -WTERMSIG(Status);
	return Process;
}
