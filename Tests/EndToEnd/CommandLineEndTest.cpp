// Copyright Corvane. MIT License.
// The program's arguments, as far as they end it before there is an editor.
#include "ChildProcess.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace
{
	/** Expects status 2, nothing on standard output and one line on standard error that holds Part. */
	void ExpectUsageError(const std::vector<std::string>& Arguments, const std::string& Part)
	{
		const FChildProcess Process = FChildProcess::Run(Arguments);
		EXPECT_EQ(Process.Status, 2);
		EXPECT_EQ(Process.Output, "");
		EXPECT_EQ(std::count(Process.Errors.begin(), Process.Errors.end(), '\n'), 1) << Process.Errors;
		EXPECT_NE(Process.Errors.find(Part), std::string::npos) << Process.Errors;
	}
}

TEST(FProgram, WithoutADisplaySaysSoAndPointsToCreate)
{
	for (const char* Variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
	{
		::unsetenv(Variable);
	}
	ExpectUsageError({}, "there is no display");
	ExpectUsageError({}, "quillon-editor create NAME");
}

TEST(FProgram, RefusesAnUnknownOption)
{
	ExpectUsageError({"create", "Main", "--colour"}, "--colour");
}

TEST(FProgram, RefusesANameThatIsNotUtf8)
{
	ExpectUsageError({"create", "a\xFF"}, "not well-formed UTF-8");
}

TEST(FProgram, TakesAPictureOfTheOutcome)
{
	const FTemporaryFolder Folder;
	const FChildProcess Process = FChildProcess::Run({"create", "Main", "--screenshot", Folder.File("a.png")});
	EXPECT_EQ(Process.Status, 0) << Process.Errors;
	EXPECT_EQ(Process.Errors, "");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("a.png")).substr(1, 3), "PNG");
}

TEST(FProgram, SavesNothingWhenItsPictureCannotBeWritten)
{
	const FTemporaryFolder Folder;
	ExpectUsageError(
		{"create", "Main", "--screenshot", Folder.File("no/a.png"), "--save", Folder.File("level.json")}, "no/a.png");
	EXPECT_TRUE(Folder.List().empty());
}

TEST(FProgram, DrivesInTheWindow)
{
	const FTemporaryFolder Folder;
	const std::string Picture = Folder.File("a.png");
	const std::string Recording = Folder.Write("recording.jsonl",
		"{\"do\":\"screenshot\",\"file\":\"" + Picture + "\",\"tab\":\"Details\"}\n" +
			"{\"do\":\"screenshot\",\"file\":\"" + Picture + "\",\"tab\":\"Nothing\"}\n");
	const FChildProcess Process = FChildProcess::Run({"drive", Recording, "--view", "qt"});
	EXPECT_EQ(Process.Status, 0) << Process.Errors;
	EXPECT_EQ(Process.Output,
		"{\"do\":\"screenshot\",\"ok\":true}\n{\"do\":\"screenshot\",\"ok\":false,"
		"\"error\":\"the window has no panel or open tab \\\"Nothing\\\"\"}\n");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Picture).substr(1, 3), "PNG");
}

TEST(FProgram, PrintsItsHelpAndVersion)
{
	const FChildProcess Help = FChildProcess::Run({"--help"});
	EXPECT_EQ(Help.Status, 0);
	EXPECT_NE(Help.Output.find("create"), std::string::npos);
	const FChildProcess Version = FChildProcess::Run({"--version"});
	EXPECT_EQ(Version.Status, 0);
	EXPECT_EQ(Version.Output.find("quillon-editor "), 0U);
}

TEST(FProgram, ReportsAHelpThatCannotBeWritten)
{
	FChildProcess::FOptions Options;
	Options.OutputFile = "/dev/full";
	const FChildProcess Process = FChildProcess::Run({"--help"}, Options);
	EXPECT_EQ(Process.Status, 2);
	EXPECT_EQ(Process.Errors, "standard output: No space left on device\n");
}
