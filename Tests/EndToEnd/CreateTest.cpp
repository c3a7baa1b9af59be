// Copyright Corvane. MIT License.
// `create` as a script sees it: answers, files and exit statuses.
#include "CreateRun.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using nlohmann::json;
using nlohmann::ordered_json;

namespace
{
	std::vector<std::string> KeysOf(const ordered_json& Object)
	{
		std::vector<std::string> Keys;
		for (const auto& [Key, Value] : Object.items())
		{
			Keys.push_back(Key);
		}
		return Keys;
	}

	size_t CountLines(const std::string& Text)
	{
		return static_cast<size_t>(std::count(Text.begin(), Text.end(), '\n'));
	}

	/** Expects status 2, one line on standard error and nothing on standard output. @return the line. */
	std::string ExpectBadInput(const FChildProcess& Process)
	{
		EXPECT_EQ(Process.Status, 2);
		EXPECT_EQ(Process.Output, "");
		EXPECT_EQ(CountLines(Process.Errors), 1U) << Process.Errors;
		return Process.Errors.substr(0, Process.Errors.find('\n'));
	}
}

TEST(FCreate, AnswersWithOneJsonObjectWhoseKeysKeepTheirOrder)
{
	const FCreateRun Run("Main");
	EXPECT_EQ(Run.Process.Errors, "");
	EXPECT_EQ(CountLines(Run.Process.Output), 1U);
	const ordered_json Answer = ordered_json::parse(Run.Process.Output);
	using FKeys = std::vector<std::string>;
	EXPECT_EQ(KeysOf(Answer), (FKeys{"ok", "message", "warning", "asset", "camera", "manager", "sender"}));
	EXPECT_EQ(KeysOf(Answer["camera"]), (FKeys{"name", "location", "rotation"}));
	EXPECT_EQ(KeysOf(Answer["manager"]), (FKeys{"name", "spawned", "entries"}));
	EXPECT_EQ(KeysOf(Answer["sender"]), (FKeys{"active", "name", "standalone", "renderTarget"}));
}

TEST(FCreate, SpawnsAManagerInAnEmptyLevel)
{
	const FCreateRun Run("Main", {"--level", GetSample("empty.json")});
	Run.ExpectCreated("Main", "/Game/CineStream/Main");
	EXPECT_EQ(Run.Answer["manager"]["spawned"], true);
	EXPECT_EQ(Run.Answer["manager"]["entries"], 1);
}

TEST(FCreate, AddsToTheFirstManagerOfALevel)
{
	const FCreateRun Run("Main", {"--level", GetSample("studio.json")});
	Run.ExpectCreated("Main", "/Game/CineStream/Main");
	EXPECT_EQ(Run.Answer["manager"]["name"], "Senders");
	EXPECT_EQ(Run.Answer["manager"]["spawned"], false);
	EXPECT_EQ(Run.Answer["manager"]["entries"], 3);
}

TEST(FCreate, PutsTheCameraWhereTheViewIs)
{
	const json Studio = json::parse(FTemporaryFolder::ReadFile(GetSample("studio.json")));
	const FCreateRun Run("Main", {"--level", GetSample("studio.json")});
	EXPECT_EQ(Run.Answer["camera"]["location"], Studio["view"]["location"]);
	EXPECT_EQ(Run.Answer["camera"]["rotation"], Studio["view"]["rotation"]);
}

TEST(FCreate, SavesALevelThatHoldsTheSetup)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.File("level.json");
	const FCreateRun Run("Main", {"--save", Level});
	const json Saved = json::parse(FTemporaryFolder::ReadFile(Level));
	ASSERT_EQ(Saved["actors"].size(), 2U);
	EXPECT_EQ(Saved["actors"][0]["name"], Run.Answer["camera"]["name"]);
	EXPECT_EQ(Saved["actors"][0]["properties"]["CaptureComponent"]["TextureTarget"], "/Game/CineStream/Main");
	EXPECT_EQ(Saved["actors"][1]["properties"]["SpoutSenders"][0]["SpoutSenderName"], "Main");
	const json Assets = {{{"path", "/Game/CineStream/Main"}, {"class", "TextureRenderTarget2D"}}};
	EXPECT_EQ(Saved["assets"], Assets);
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"level.json"});
}

TEST(FCreate, GoesOnFromItsOwnSavedLevel)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.File("level.json");
	FCreateRun("One", {"--save", Level}).ExpectCreated("One", "/Game/CineStream/One");
	const FCreateRun Second("Two", {"--level", Level, "--save", Level});
	Second.ExpectCreated("Two", "/Game/CineStream/Two");
	EXPECT_EQ(Second.Answer["manager"]["spawned"], false);
	EXPECT_EQ(Second.Answer["manager"]["entries"], 2);
	const FCreateRun Third("Three", {"--level", Level});
	EXPECT_EQ(Third.Answer["manager"]["entries"], 3);
}

TEST(FCreate, TellsPeopleWhatWasMade)
{
	const FTemporaryFolder Folder;
	const FChildProcess Process = FChildProcess::Run({"create", "Main", "--save", Folder.File("level.json")});
	EXPECT_EQ(Process.Status, 0);
	EXPECT_EQ(Process.Errors, "");
	for (const char* Part : {"Cinestream 'Main' created!", "/Game/CineStream/Main", "Main_Standalone", "new, 1 entry"})
	{
		EXPECT_NE(Process.Output.find(Part), std::string::npos) << Part << " in\n" << Process.Output;
	}
	EXPECT_NE(Process.Output.find(Folder.File("level.json")), std::string::npos);
}

TEST(FCreate, TellsPeopleWhyNothingWasMade)
{
	const FChildProcess Process = FChildProcess::Run({"create", "Stage Left", "--level", GetSample("studio.json")});
	EXPECT_EQ(Process.Status, 1);
	EXPECT_EQ(Process.Output, FWizardTexts::EmptyName + "\nWhile typing   " + FWizardTexts::TakenName + "\n");
}

TEST(FCreate, SavesNothingWhenItFails)
{
	const FTemporaryFolder Folder;
	const FCreateRun Run(" ", {"--save", Folder.File("level.json")});
	EXPECT_EQ(Run.Process.Status, 1);
	EXPECT_TRUE(Folder.List().empty());
}

TEST(FCreate, RefusesAMissingLevel)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.File("none.json");
	EXPECT_EQ(ExpectBadInput(FChildProcess::Run({"create", "Main", "--level", Level})),
		Level + ": No such file or directory");
}

TEST(FCreate, RefusesADamagedLevelWithItsPlaceAndSavesNothing)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.Write("bad.json", R"({"actors":[{"class":"Chair","name":"a"}]})");
	const FChildProcess Process =
		FChildProcess::Run({"create", "Main", "--level", Level, "--save", Folder.File("out.json")});
	EXPECT_EQ(ExpectBadInput(Process), Level + ": /actors/0/class: \"Chair\" is no class of actors");
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"bad.json"});
}

TEST(FCreate, RefusesToSaveBelowARegularFile)
{
	const FTemporaryFolder Folder;
	const std::string Below = Folder.Write("file", "old") + "/level.json";
	EXPECT_EQ(ExpectBadInput(FChildProcess::Run({"create", "Main", "--save", Below})), Below + ": Not a directory");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("file")), "old");
}

TEST(FCreate, LeavesTheOldFileWhenTheSizeLimitIsExceeded)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.Write("level.json", "old");
	FChildProcess::FOptions Options;
	Options.FileSizeLimit = 16;
	const FChildProcess Process = FChildProcess::Run({"create", "Main", "--save", Level}, Options);
	EXPECT_EQ(ExpectBadInput(Process), Level + ": File too large");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Level), "old");
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"level.json"});
}

TEST(FCreate, ReportsAnAnswerThatCannotBeWritten)
{
	FChildProcess::FOptions Options;
	Options.OutputFile = "/dev/full";
	const FChildProcess Process = FChildProcess::Run({"create", "Main"}, Options);
	EXPECT_EQ(ExpectBadInput(Process), "standard output: No space left on device");
}

TEST(FCreate, SavesNothingWhenTheAnswerCannotBeWritten)
{
	const FTemporaryFolder Folder;
	FChildProcess::FOptions Options;
	Options.OutputFile = "/dev/full";
	const FChildProcess Process = FChildProcess::Run({"create", "Main", "--save", Folder.File("level.json")}, Options);
	EXPECT_EQ(ExpectBadInput(Process), "standard output: No space left on device");
	EXPECT_EQ(Folder.List(), std::vector<std::string>());
}

TEST(FCreate, RefusesAProjectWithoutThePlugin)
{
	const FTemporaryFolder Folder;
	const std::string Line = ExpectBadInput(FChildProcess::Run({"create", "Main", "--project", Folder.File("")}));
	EXPECT_EQ(Line.find(Folder.File("")), 0U) << Line;
}

TEST(FCreate, RefusesAFileAsTheFolderForWhatIsSaved)
{
	const FTemporaryFolder Folder;
	const std::string File = Folder.Write("saved", "a file");
	for (const std::string& Saved : {File, File + "/below"})
	{
		EXPECT_EQ(
			ExpectBadInput(FChildProcess::Run({"create", "Main", "--saved", Saved, "--save", Folder.File("level")})),
			Saved + ": Not a directory");
	}
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"saved"});
}

TEST(FCreate, WritesNothingIntoTheWorkingDirectory)
{
	const FTemporaryFolder Folder;
	FChildProcess::FOptions Options;
	Options.Directory = Folder.File("");
	EXPECT_EQ(FChildProcess::Run({"create", "Main", "--saved", Folder.File("saved")}, Options).Status, 0);
	const std::vector<std::string> Left = Folder.List();
	EXPECT_TRUE(Left.empty() || Left == std::vector<std::string>{"saved"});
}
