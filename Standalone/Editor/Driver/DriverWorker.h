// Copyright Corvane. MIT License.
#pragma once

struct FDriveOptions;

/** The process behind the front: an editor that answers the lines on its standard input. See FWorkerProcess. */
class FDriverWorker
{
public:
	/** @return the status with which the program ends. */
	static int Run(const FDriveOptions& Options);
};
