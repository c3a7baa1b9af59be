// Copyright Corvane. MIT License.
#include "XServer.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

FXServer::FXServer()
{
	std::array<int, 2> Pipe{};
	if (::pipe(Pipe.data()) != 0)
	{
		return;
	}
	Process = ::fork();
	if (Process == 0)
	{
		// It goes with the test, whatever ends that.
		::prctl(PR_SET_PDEATHSIG, SIGKILL);
		::close(Pipe[0]);
		const std::string Handle = std::to_string(Pipe[1]);
		const int Nowhere = ::open("/dev/null", O_WRONLY);
		::dup2(Nowhere, STDERR_FILENO);
		::execlp(
			"Xvfb", "Xvfb", "-displayfd", Handle.c_str(), "-screen", "0", "1920x1080x24", "-nolisten", "tcp", nullptr);
		::_exit(127);
	}
	::close(Pipe[1]);
	// The server picks a free number, and says so once it listens.
	std::string Number;
	char Byte = 0;
	while (::read(Pipe[0], &Byte, 1) == 1 && Byte != '\n')
	{
		Number += Byte;
	}
	::close(Pipe[0]);
	Display = Number.empty() ? std::string() : ":" + Number;
}

FXServer::~FXServer()
{
	if (Process > 0)
	{
		::kill(Process, SIGTERM);
		::waitpid(Process, nullptr, 0);
	}
}
