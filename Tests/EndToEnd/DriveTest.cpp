// Copyright Corvane. MIT License.
#include "ChildProcess.h"
#include "DriveProcess.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

namespace
{
	const std::string Collect = "{\"do\":\"collect\"}";
	const std::string Collected = "{\"do\":\"collect\",\"ok\":true}";
	const std::string CountActors = "{\"do\":\"level\"}";
	const std::string NoActors =
		"{\"do\":\"level\",\"ok\":true,\"dirty\":false,\"dirtied\":0,\"actors\":[],\"selected\":[]}";
	const std::string PlaceCamera =
		"{\"do\":\"place\",\"class\":\"ZAVCineCamCapture\",\"location\":[0,0,0],\"rotation\":[0,0,0]}";
	const std::string Placed = "{\"do\":\"place\",\"ok\":true,\"name\":\"ZAVCineCamCapture_0\"}";
	constexpr size_t MaxLine = size_t(16) << 20U;

	std::string Unknown(const std::string& Do)
	{
		return "{\"do\":\"" + Do + "\",\"ok\":false,\"error\":\"unknown request \\\"" + Do + "\\\"\"}";
	}

	/** Plays a recording from a file. */
	FChildProcess Play(const std::string& Recording)
	{
		const FTemporaryFolder Folder;
		return FChildProcess::Run({"drive", Folder.Write("recording.jsonl", Recording)});
	}

	/** A request of exactly this many bytes. */
	std::string MakeLong(size_t Length)
	{
		const std::string Begin = "{\"do\":\"collect\"";
		return Begin + std::string(Length - Begin.size() - 1, ' ') + "}";
	}
}

TEST(Drive, AnswersEachLineOfAFileInOrder)
{
	const FChildProcess Run = Play("{\"do\":\"a\"}\n" + Collect + "\n{\"do\":\"b\"}\n");
	EXPECT_EQ(Run.Status, 0);
	EXPECT_EQ(Run.Output, Unknown("a") + '\n' + Collected + '\n' + Unknown("b") + '\n');
	EXPECT_EQ(Run.Errors, "");
}

TEST(Drive, AnswersEachLineOfStandardInputBeforeTheNext)
{
	FDriveProcess Drive;
	EXPECT_EQ(Drive.Ask(PlaceCamera), Placed);
	EXPECT_EQ(Drive.Ask(Collect), Collected);
	EXPECT_NE(Drive.Ask(CountActors).find("\"name\":\"ZAVCineCamCapture_0\""), std::string::npos);
	Drive.CloseInput();
	EXPECT_EQ(Drive.Read(), "(end)");
	EXPECT_EQ(Drive.Wait(), 0);
	EXPECT_EQ(Drive.ReadErrors(), "");
}

TEST(Drive, AnswersLinesThatCameTogether)
{
	FDriveProcess Drive;
	EXPECT_TRUE(Drive.Send("{\"do\":\"a\"}\n" + Collect + "\n{\"do\":"));
	EXPECT_EQ(Drive.Read(), Unknown("a"));
	EXPECT_EQ(Drive.Read(), Collected);
	EXPECT_TRUE(Drive.Send("\"c\"}\n"));
	EXPECT_EQ(Drive.Read(), Unknown("c"));
}

TEST(Drive, TakesCarriageReturnsAndAMissingLastLineFeed)
{
	EXPECT_EQ(Play(Collect + "\r\n" + Collect).Output, Collected + '\n' + Collected + '\n');
}

TEST(Drive, AnswersEmptyLinesWithAnError)
{
	const FChildProcess Run = Play("\n" + Collect + "\n\r\n");
	EXPECT_EQ(Run.Status, 0);
	EXPECT_EQ(Run.Output.find("{\"do\":null,\"ok\":false,"), 0u);
	EXPECT_EQ(std::count(Run.Output.begin(), Run.Output.end(), '\n'), 3);
}

TEST(Drive, EndsWellWithoutARequest)
{
	const FChildProcess Run = Play("");
	EXPECT_EQ(Run.Status, 0);
	EXPECT_EQ(Run.Output, "");
	EXPECT_EQ(Run.Errors, "");
}

TEST(Drive, TakesLinesOfSixteenMebibytes)
{
	EXPECT_EQ(Play(MakeLong(MaxLine) + '\n').Output, Collected + '\n');
	EXPECT_EQ(Play(MakeLong(MaxLine)).Output, Collected + '\n');
}

TEST(Drive, SkipsLongerLines)
{
	const std::string TooLong = "{\"do\":null,\"ok\":false,\"error\":\"the line is longer than 16 MiB\"}\n";
	const FChildProcess Run =
		Play(PlaceCamera + '\n' + MakeLong(MaxLine + 1) + '\n' + PlaceCamera + '\n' + MakeLong(MaxLine * 3));
	EXPECT_EQ(Run.Status, 0);
	EXPECT_EQ(Run.Output,
		Placed + '\n' + TooLong + "{\"do\":\"place\",\"ok\":true,\"name\":\"ZAVCineCamCapture_1\"}\n" + TooLong);
}

TEST(Drive, GivesAnswersOfAnyLength)
{
	const std::string Do(MaxLine / 2, 'x');
	const FChildProcess Run = Play("{\"do\":\"" + Do + "\"}\n" + Collect + '\n');
	EXPECT_EQ(Run.Output.find("{\"do\":\"" + Do + "\",\"ok\":false,"), 0u);
	EXPECT_EQ(Run.Output.substr(Run.Output.find('\n') + 1), Collected + '\n');
}

TEST(Drive, RestartsTheModuleWithinTheSameEditor)
{
	FDriveProcess Drive;
	Drive.Ask(PlaceCamera);
	const pid_t Worker = Drive.GetWorker();
	EXPECT_EQ(Drive.Ask("{\"do\":\"restart\",\"what\":\"module\"}"), "{\"do\":\"restart\",\"ok\":true}");
	EXPECT_EQ(Drive.GetWorker(), Worker);
	EXPECT_NE(Drive.Ask(CountActors).find("ZAVCineCamCapture_0"), std::string::npos);
}

TEST(Drive, RestartsTheEditorAsANewProcess)
{
	FDriveProcess Drive;
	Drive.Ask(PlaceCamera);
	for (int Round = 0; Round < 3; ++Round)
	{
		const pid_t Worker = Drive.GetWorker();
		EXPECT_EQ(Drive.Ask("{\"do\":\"restart\",\"what\":\"editor\"}"), "{\"do\":\"restart\",\"ok\":true}");
		EXPECT_NE(Drive.GetWorker(), Worker);
		EXPECT_EQ(Drive.Ask(CountActors), NoActors);
	}
	Drive.CloseInput();
	EXPECT_EQ(Drive.Wait(), 0);
	EXPECT_EQ(Drive.ReadErrors(), "");
}

TEST(Drive, EndsLikeAWorkerThatASignalEnded)
{
	// Not one that the address sanitizer reports by itself.
	for (const int Signal : {SIGKILL, SIGTERM})
	{
		FDriveProcess Drive;
		EXPECT_EQ(Drive.Ask(Collect), Collected);
		ASSERT_EQ(::kill(Drive.GetWorker(), Signal), 0);
		// Noticed without another request.
		EXPECT_EQ(Drive.Read(), "(end)");
		EXPECT_EQ(Drive.Wait(), 128 + Signal);
		EXPECT_NE(Drive.ReadErrors().find("quillon-editor: the editor was ended by a signal"), std::string::npos);
	}
}

TEST(Drive, EndsWithThreeAfterAFatalCheck)
{
	// The wizard needs the registry of assets for what it makes.
	const FChildProcess Run =
		Play("{\"do\":\"module\",\"name\":\"AssetRegistry\",\"action\":\"unload\"}\n"
			 "{\"do\":\"invoke-tab\",\"tab\":\"CineStreamWizard\"}\n"
			 "{\"do\":\"type\",\"tab\":\"CineStreamWizard\",\"text\":\"Main\",\"commit\":\"none\"}\n"
			 "{\"do\":\"click\",\"tab\":\"CineStreamWizard\","
			 "\"text\":\"Create Instant Cinestream Output\"}\n" +
			Collect + '\n');
	EXPECT_EQ(Run.Status, 3);
	EXPECT_EQ(std::count(Run.Output.begin(), Run.Output.end(), '\n'), 3) << Run.Output;
	EXPECT_EQ(Run.Errors.find("Assertion failed: AssetRegistry [File:Source/QuillonEditor/Private/"), 0u) << Run.Errors;
}

TEST(Drive, EndsWithTwoWhenNobodyReadsTheAnswers)
{
	FDriveProcess Drive;
	EXPECT_EQ(Drive.Ask(Collect), Collected);
	Drive.CloseOutput();
	EXPECT_TRUE(Drive.Send(Collect + '\n'));
	EXPECT_EQ(Drive.Wait(), 2);
	EXPECT_EQ(Drive.ReadErrors(), "standard output: Broken pipe\n");
}

TEST(Drive, EndsWithTwoOnAFullDisk)
{
	const FTemporaryFolder Folder;
	FChildProcess::FOptions Options;
	Options.OutputFile = "/dev/full";
	const FChildProcess Run = FChildProcess::Run({"drive", Folder.Write("recording.jsonl", Collect)}, Options);
	EXPECT_EQ(Run.Status, 2);
	EXPECT_EQ(Run.Errors, "standard output: No space left on device\n");
}

TEST(Drive, RefusesFilesThatCannotBeRead)
{
	const FTemporaryFolder Folder;
	for (const auto& [File, Reason] :
		{std::pair(Folder.File("missing"), "No such file or directory"), std::pair(Folder.File(""), "Is a directory")})
	{
		const FChildProcess Run = FChildProcess::Run({"drive", File});
		EXPECT_EQ(Run.Status, 2);
		EXPECT_EQ(Run.Output, "");
		EXPECT_EQ(Run.Errors, File + ": " + Reason + '\n');
	}
}

TEST(Drive, TakesTheNullViewAndAFolderForWhatIsSaved)
{
	const FTemporaryFolder Folder;
	const std::string Recording =
		Folder.Write("recording.jsonl", Collect + "\n{\"do\":\"restart\",\"what\":\"editor\"}");
	const FChildProcess Run =
		FChildProcess::Run({"drive", Recording, "--view", "null", "--saved", Folder.File("saved")});
	EXPECT_EQ(Run.Status, 0) << Run.Errors;
	EXPECT_EQ(Run.Output, Collected + "\n{\"do\":\"restart\",\"ok\":true}\n");
}

TEST(Drive, RefusesAFileAsTheFolderForWhatIsSaved)
{
	const FTemporaryFolder Folder;
	const std::string Saved = Folder.Write("saved", "a file");
	for (const std::string& Recording : {std::string(), Collect + '\n'})
	{
		const FChildProcess Run =
			FChildProcess::Run({"drive", Folder.Write("recording.jsonl", Recording), "--saved", Saved});
		EXPECT_EQ(Run.Status, 2);
		EXPECT_EQ(Run.Output, "");
		EXPECT_EQ(Run.Errors, Saved + ": Not a directory\n");
	}
}

TEST(Drive, RefusesALinkToNothingAsTheFolderForWhatIsSaved)
{
	const FTemporaryFolder Folder;
	const std::string Link = Folder.File("link");
	std::filesystem::create_symlink("none", Link);
	std::filesystem::create_directory(Folder.File("saved"));
	std::filesystem::create_symlink("none", Folder.File("saved/SaveGames"));
	for (const auto& [Saved, Culprit] :
		{std::pair(Link, Link), std::pair(Folder.File("saved"), Folder.File("saved/SaveGames"))})
	{
		const FChildProcess Run =
			FChildProcess::Run({"drive", Folder.Write("recording.jsonl", Collect + '\n'), "--saved", Saved});
		EXPECT_EQ(Run.Status, 2);
		EXPECT_EQ(Run.Output, "");
		EXPECT_EQ(Run.Errors, Culprit + ": a symbolic link that leads to nothing\n");
	}
}

TEST(Drive, HandsTheSavedFolderToEachWorker)
{
	const FTemporaryFolder Folder;
	FDriveProcess Drive({"--saved", Folder.File("")});
	for (int Round = 0; Round < 2; ++Round)
	{
		// One that has answered: a process that has only just begun may have no arguments to read yet.
		EXPECT_EQ(Drive.Ask(Collect), Collected);
		const std::string Arguments =
			FTemporaryFolder::ReadFile("/proc/" + std::to_string(Drive.GetWorker()) + "/cmdline");
		EXPECT_NE(Arguments.find(Folder.File("")), std::string::npos) << "round " << Round;
		EXPECT_EQ(Drive.Ask("{\"do\":\"restart\",\"what\":\"editor\"}"), "{\"do\":\"restart\",\"ok\":true}");
	}
}

TEST(Drive, LetsNothingThatTheWorkerPrintsIntoTheAnswers)
{
	FDriveProcess Drive;
	EXPECT_EQ(Drive.Ask(Collect), Collected);
	const std::string Handles = "/proc/" + std::to_string(Drive.GetWorker()) + "/fd/";
	EXPECT_EQ(std::filesystem::read_symlink(Handles + "1"), std::filesystem::read_symlink(Handles + "2"));
}
