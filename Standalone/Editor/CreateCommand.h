// Copyright Corvane. MIT License.
#pragma once

#include "CommandLine.h"

/** `quillon-editor create`: the plugin's main job from start to end, in an editor of its own. */
class FCreateCommand
{
public:
	/** Runs the job and prints its answer, or one line on standard error. */
	static EExitStatus Run(const FCreateOptions& Options);
};
