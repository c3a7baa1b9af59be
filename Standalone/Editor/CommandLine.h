// Copyright Corvane. MIT License.
#pragma once

#include <optional>
#include <string>

/** How the program ends; what each means to a calling script is a public interface. */
enum class EExitStatus : int
{
	Done = 0,
	JobFailed = 1,
	/** Bad arguments, or a file that cannot be read or written. One line on standard error, nothing was written. */
	BadInput = 2
	// A fatal engine check ends the process with 3 by itself.
};

/** What `create` was asked to do. Texts and paths are the bytes of the command line; Name is well-formed UTF-8. */
struct FCreateOptions
{
	std::string Name;
	std::optional<std::string> LevelFile;
	std::optional<std::string> SaveFile;
	std::optional<std::string> SavedDir;
	std::optional<std::string> ProjectDir;
	/** Where a picture of the window goes that shows the outcome. */
	std::optional<std::string> ScreenshotFile;
	bool bJson = false;
};

/** What `drive` was asked to do. Paths are the bytes of the command line. */
struct FDriveOptions
{
	/** The recording; without it requests come from standard input. */
	std::optional<std::string> File;
	std::optional<std::string> SavedDir;
	/** Whether the editor is shown by the window, though nobody sees it; else by nothing. */
	bool bWindow = false;
	/** This process is the editor behind the one that was asked. */
	bool bWorker = false;
};

/** How the window was asked for. Paths are the bytes of the command line. */
struct FWindowOptions
{
	std::optional<std::string> LevelFile;
	std::optional<std::string> SavedDir;
	std::optional<std::string> ProjectDir;
};

/** The outcome of reading the command line: either a job, or texts to print and the status to end with. */
struct FCommandLine
{
	std::optional<FCreateOptions> Create;
	std::optional<FDriveOptions> Drive;
	std::optional<FWindowOptions> Window;
	EExitStatus Status = EExitStatus::Done;
	std::string Output;
	std::string ErrorLine;

	/** Reads the arguments of main(). Nothing is printed here. */
	static FCommandLine Parse(int ArgumentCount, char** Arguments);
};
