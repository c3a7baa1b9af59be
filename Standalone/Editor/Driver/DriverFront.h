// Copyright Corvane. MIT License.
#pragma once

#include "CommandLine.h"
#include "Driver/WorkerProcess.h"

/**
 * `quillon-editor drive` as its caller sees it. It outlives the editors that answer: requests come from a file or from
 * standard input, and each is handed to the worker and answered before the next one is read.
 */
class FDriverFront
{
public:
	explicit FDriverFront(const FDriveOptions& InOptions) : Options(InOptions) {}

	/** @return the status with which the program ends: that of the worker if it dies. */
	int Run();

private:
	int Play(FLineReader& Input);
	/** @return false if it is over, with the status to end with. */
	bool Answer(const std::string& Line, int& OutStatus);
	bool StartWorker();

	FDriveOptions Options;
	FWorkerProcess Worker;
};
