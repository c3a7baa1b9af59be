// Copyright Corvane. MIT License.
#pragma once

#include "CommandLine.h"
#include "Driver/LineReader.h"

#include <sys/types.h>

#include <memory>
#include <string>

/**
 * The process that is the editor, as the front sees it: lines go in, for each of which one answer comes out. Answers
 * have a pipe of their own, so that nothing mixes into them that a library prints; that goes to standard error.
 */
class FWorkerProcess
{
public:
	/** Where the worker finds the pipe for its answers. */
	static constexpr int AnswersHandle = 3;

	/**
	 * Follows each answer in a line of its own and says what the worker does next. Without it the answer may be cut
	 * off.
	 */
	enum class EMark : char
	{
		GoesOn = '+',
		/** It waits for the end of its input, so that another one can take its place. */
		Restarts = '!'
	};

	FWorkerProcess() = default;
	FWorkerProcess(const FWorkerProcess&) = delete;
	FWorkerProcess& operator=(const FWorkerProcess&) = delete;
	/** Ends the worker if it runs. */
	~FWorkerProcess() { Finish(); }

	/** Starts this very program once more. @return false, with one line, if the system refuses. */
	bool Start(const FDriveOptions& Options, std::string& OutError);

	/** Hands a line over and waits for the answer. @return false if the worker died over it. */
	bool Ask(const std::string& Line, EMark& OutMark, std::string& OutAnswer);

	/** Can be read while no answer is awaited only when the worker died. */
	int GetAnswers() const { return Answers->GetHandle(); }

	/**
	 * Ends the worker's input and waits until it is gone.
	 * @return its exit status; for one that a signal ended 128 + the signal's number, after a line on standard error.
	 */
	int Finish();

private:
	pid_t Process = -1;
	FDescriptor Requests;
	std::unique_ptr<FLineReader> Answers;
};
