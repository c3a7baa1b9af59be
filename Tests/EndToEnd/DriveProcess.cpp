// Copyright Corvane. MIT License.
#include "DriveProcess.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <limits>

namespace
{
	constexpr size_t NoLimit = std::numeric_limits<size_t>::max();

	struct FPipe
	{
		FPipe()
		{
			std::array<int, 2> Handles{};
			EXPECT_EQ(::pipe2(Handles.data(), O_CLOEXEC), 0);
			Read = FDescriptor(Handles[0]);
			Write = FDescriptor(Handles[1]);
		}

		FDescriptor Read;
		FDescriptor Write;
	};

	[[noreturn]] void Become(const std::vector<std::string>& Arguments)
	{
		std::vector<char*> Pointers = {const_cast<char*>(QUILLON_EDITOR_PROGRAM), const_cast<char*>("drive")};
		for (const std::string& Argument : Arguments)
		{
			Pointers.push_back(const_cast<char*>(Argument.c_str()));
		}
		Pointers.push_back(nullptr);
		::execv(Pointers[0], Pointers.data());
		::_exit(127);
	}
}

FDriveProcess::FDriveProcess(const std::vector<std::string>& Arguments)
	: Output(FDescriptor(), NoLimit), Errors(FDescriptor(), NoLimit)
{
	// A write to a program that has ended shall fail, not end the test.
	std::signal(SIGPIPE, SIG_IGN);
	FPipe ToProcess;
	FPipe FromProcess;
	FPipe ErrorPipe;
	Process = ::fork();
	if (Process == 0)
	{
		::dup2(ToProcess.Read.Get(), STDIN_FILENO);
		::dup2(FromProcess.Write.Get(), STDOUT_FILENO);
		::dup2(ErrorPipe.Write.Get(), STDERR_FILENO);
		Become(Arguments);
	}
	Input = std::move(ToProcess.Write);
	Output = FLineReader(std::move(FromProcess.Read), NoLimit);
	Errors = FLineReader(std::move(ErrorPipe.Read), NoLimit);
}

FDriveProcess::~FDriveProcess()
{
	if (Process > 0)
	{
		::kill(Process, SIGKILL);
		Wait();
	}
}

std::string FDriveProcess::Read()
{
	std::string Line;
	return Output.Next(Line) == FLineReader::EResult::Line ? Line : "(end)";
}

std::string FDriveProcess::Ask(const std::string& Line)
{
	EXPECT_TRUE(Send(Line + '\n'));
	return Read();
}

pid_t FDriveProcess::GetWorker() const
{
	const std::string Pid = std::to_string(Process);
	std::ifstream Children("/proc/" + Pid + "/task/" + Pid + "/children");
	pid_t Worker = 0;
	pid_t Another = 0;
	EXPECT_TRUE(Children >> Worker);
	EXPECT_FALSE(Children >> Another);
	return Worker;
}

int FDriveProcess::Wait()
{
	int Status = 0;
	EXPECT_EQ(::waitpid(Process, &Status, 0), Process);
	Process = -1;
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : -WTERMSIG(Status);
}

std::string FDriveProcess::ReadErrors()
{
	std::string All;
	std::string Line;
	while (Errors.Next(Line) == FLineReader::EResult::Line)
	{
		All += Line + '\n';
	}
	return All;
}
