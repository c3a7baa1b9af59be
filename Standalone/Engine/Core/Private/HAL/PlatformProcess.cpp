// Copyright Corvane. MIT License.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "HAL/PlatformProcess.h"

#include "Misc/CoreDelegates.h"
#include "Standalone/AddressOpener.h"

namespace
{
	/** One line on standard error. An address may hold anything, also what a terminal takes for a command. */
	void PrintToTerminal(FString Line)
	{
		for (int32 Index = 0; Index < Line.Len(); ++Index)
		{
			const bool bControl = Line[Index] < TEXT(' ') || (Line[Index] >= 0x7f && Line[Index] < 0xa0);
			Line[Index] = bControl ? TEXT('?') : Line[Index];
		}
		std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(Line));
	}

	/** In the middle process: starts the opener, cut off from this program's streams and session. @return errno. */
	int SpawnOpener(const ANSICHAR* Address)
	{
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		for (const int Stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
		{
			posix_spawn_file_actions_addopen(&Actions, Stream, "/dev/null", O_RDWR, 0);
		}
		posix_spawnattr_t Attributes;
		posix_spawnattr_init(&Attributes);
		posix_spawnattr_setflags(&Attributes, POSIX_SPAWN_SETSID);
		ANSICHAR* const Arguments[] = {const_cast<ANSICHAR*>("xdg-open"), const_cast<ANSICHAR*>(Address), nullptr};
		pid_t Opener;
		return posix_spawnp(&Opener, Arguments[0], &Actions, &Attributes, Arguments, environ);
	}

	/** @return 0 once the opener runs, else the error's number. */
	int PassOn(const ANSICHAR* Address)
	{
		// Two processes, so that the opener becomes the child of init, which reaps it whenever it ends.
		const pid_t Middle = fork();
		if (Middle == 0)
		{
			_exit(SpawnOpener(Address));
		}
		int Status = 0;
		while (Middle < 0 || waitpid(Middle, &Status, 0) < 0)
		{
			if (Middle < 0 || errno != EINTR)
			{
				return errno;
			}
		}
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : ECANCELED;
	}
}

void FPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* /*Parms*/, FString* Error)
{
	FString Reason;
	const bool bHeldBack = FCoreDelegates::ShouldLaunchUrl.IsBound() && !FCoreDelegates::ShouldLaunchUrl.Execute(URL);
	if (bHeldBack)
	{
		Reason = TEXT("held back by the program");
	}
	else if (FAddressOpener::IsAllowed(URL, &Reason))
	{
		if (const int Number = PassOn(TCHAR_TO_UTF8(URL)))
		{
			Reason = FString("xdg-open can't be started: ") + std::strerror(Number);
		}
	}
	if (Reason.IsEmpty())
	{
		return;
	}
	const FString Line = FString::Printf(TEXT("'%s' is not opened: %s"), URL, *Reason);
	if (Error)
	{
		*Error = Line;
	}
	else if (!bHeldBack)
	{
		// The caller does not ask, but a user who clicked in vain does.
		PrintToTerminal(Line);
	}
}
