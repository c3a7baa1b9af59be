// Copyright Corvane. MIT License.
#pragma once

#include "CommandLine.h"

/** The program without a command: the editor in its window, until that is closed. */
class FWindowCommand
{
public:
	/** What can't be done is one line on standard error. */
	static EExitStatus Run(const FWindowOptions& Options);
};
