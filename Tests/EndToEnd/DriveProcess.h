// Copyright Corvane. MIT License.
#pragma once

#include "Driver/LineReader.h"

#include <sys/types.h>

#include <string>
#include <vector>

/** A run of `quillon-editor drive` that a test talks with, line by line. It is ended at the end of its scope. */
class FDriveProcess
{
public:
	/** Arguments follow "drive". */
	explicit FDriveProcess(const std::vector<std::string>& Arguments = {});
	FDriveProcess(const FDriveProcess&) = delete;
	FDriveProcess& operator=(const FDriveProcess&) = delete;
	~FDriveProcess();

	/** Sends bytes as they are. @return false if nobody reads them any more. */
	bool Send(const std::string& Bytes) const { return Input.WriteAll(Bytes); }

	/** @return the next line of the answers, or "(end)". */
	std::string Read();

	/** Sends a line and returns its answer. */
	std::string Ask(const std::string& Line);

	void CloseInput() { Input.Close(); }
	void CloseOutput() { Output = FLineReader(FDescriptor(), 0); }

	/** @return the one process that this one started. */
	pid_t GetWorker() const;

	/** Waits for the end. @return the exit status, or minus the signal that ended it. */
	int Wait();

	/** What was written to standard error up to the end. */
	std::string ReadErrors();

private:
	pid_t Process = -1;
	FDescriptor Input;
	FLineReader Output;
	FLineReader Errors;
};
