// Copyright Corvane. MIT License.
#include "CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
	FCommandLine Parse(std::vector<std::string> Arguments)
	{
		Arguments.insert(Arguments.begin(), "quillon-editor");
		std::vector<char*> Pointers;
		for (std::string& Argument : Arguments)
		{
			Pointers.push_back(Argument.data());
		}
		return FCommandLine::Parse(static_cast<int>(Pointers.size()), Pointers.data());
	}

	std::string NameOf(const std::vector<std::string>& Arguments)
	{
		const FCommandLine Result = Parse(Arguments);
		EXPECT_TRUE(Result.Create.has_value()) << Result.ErrorLine;
		return Result.Create ? Result.Create->Name : std::string();
	}

	std::string RefusalOf(const std::vector<std::string>& Arguments)
	{
		const FCommandLine Result = Parse(Arguments);
		EXPECT_EQ(Result.Status, EExitStatus::BadInput);
		EXPECT_FALSE(Result.Create.has_value());
		EXPECT_EQ(Result.ErrorLine.find('\n'), std::string::npos);
		return Result.ErrorLine;
	}
}

TEST(FCommandLine, ReadsEveryOptionOfCreate)
{
	const FCommandLine Result =
		Parse({"create", "Main", "--level", "a", "--save", "b", "--saved", "c", "--project", "d", "--json"});
	ASSERT_TRUE(Result.Create.has_value()) << Result.ErrorLine;
	EXPECT_EQ(Result.Create->Name, "Main");
	EXPECT_EQ(Result.Create->LevelFile, "a");
	EXPECT_EQ(Result.Create->SaveFile, "b");
	EXPECT_EQ(Result.Create->SavedDir, "c");
	EXPECT_EQ(Result.Create->ProjectDir, "d");
	EXPECT_TRUE(Result.Create->bJson);
}

TEST(FCommandLine, LeavesWhatWasNotGivenUnset)
{
	const FCommandLine Result = Parse({"create", "Main"});
	ASSERT_TRUE(Result.Create.has_value());
	EXPECT_FALSE(Result.Create->LevelFile || Result.Create->SaveFile || Result.Create->SavedDir);
	EXPECT_FALSE(Result.Create->ProjectDir.has_value());
	EXPECT_FALSE(Result.Create->bJson);
}

TEST(FCommandLine, PassesNamesOnLetterForLetter)
{
	for (const char* Name :
		{"", " ", "\t", "{0}", "{", "`", "%s", "..", "a/b", "a\\b", "\"q\"", "'q'", "[a,b]", "a=b", "😀"})
	{
		EXPECT_EQ(NameOf({"create", Name}), Name);
	}
}

TEST(FCommandLine, TakesANameThatLooksLikeAnOptionBehindTwoDashes)
{
	EXPECT_EQ(NameOf({"create", "--", "--json"}), "--json");
}

TEST(FCommandLine, OpensTheWindowWithoutACommand)
{
	const FCommandLine Plain = Parse({});
	ASSERT_TRUE(Plain.Window.has_value());
	EXPECT_FALSE(Plain.Window->LevelFile.has_value());
	const FCommandLine Full = Parse({"--level", "a.json", "--saved", "b", "--project", "c"});
	ASSERT_TRUE(Full.Window.has_value());
	EXPECT_EQ(Full.Window->LevelFile, "a.json");
	EXPECT_EQ(Full.Window->SavedDir, "b");
	EXPECT_EQ(Full.Window->ProjectDir, "c");
}

TEST(FCommandLine, KnowsWhereAScreenshotGoes)
{
	const FCommandLine Result = Parse({"create", "Main", "--screenshot", "a.png"});
	ASSERT_TRUE(Result.Create.has_value());
	EXPECT_EQ(Result.Create->ScreenshotFile, "a.png");
	EXPECT_EQ(
		RefusalOf({"create", "Main", "--screenshot", ""}), "quillon-editor: --screenshot needs the name of a file");
}

TEST(FCommandLine, DrivesInTheViewThatIsNamed)
{
	EXPECT_FALSE(Parse({"drive"}).Drive->bWindow);
	EXPECT_FALSE(Parse({"drive", "--view", "null"}).Drive->bWindow);
	EXPECT_TRUE(Parse({"drive", "--view", "qt"}).Drive->bWindow);
	EXPECT_NE(RefusalOf({"drive", "--view", "gl"}).find("gl"), std::string::npos);
}

TEST(FCommandLine, RefusesANameThatIsNotUtf8)
{
	EXPECT_EQ(RefusalOf({"create", "a\xFF"}), "quillon-editor: NAME is not well-formed UTF-8");
}

TEST(FCommandLine, RefusesAMissingName)
{
	EXPECT_EQ(RefusalOf({"create"}), "quillon-editor: NAME is required");
}

TEST(FCommandLine, RefusesWhatItDoesNotKnow)
{
	EXPECT_NE(RefusalOf({"create", "Main", "--colour"}).find("--colour"), std::string::npos);
	EXPECT_NE(RefusalOf({"create", "Main", "Second"}).find("Second"), std::string::npos);
	EXPECT_NE(RefusalOf({"destroy"}).find("destroy"), std::string::npos);
}

TEST(FCommandLine, RefusesAnOptionWithoutItsValue)
{
	EXPECT_NE(RefusalOf({"create", "Main", "--level"}).find("--level"), std::string::npos);
}

TEST(FCommandLine, RefusesAFolderWithoutAName)
{
	EXPECT_EQ(RefusalOf({"create", "Main", "--saved", ""}), "quillon-editor: --saved needs the name of a folder");
	EXPECT_EQ(RefusalOf({"drive", "--saved", ""}), "quillon-editor: --saved needs the name of a folder");
}

TEST(FCommandLine, RefusesAnOptionGivenTwice)
{
	EXPECT_NE(RefusalOf({"create", "Main", "--save", "a", "--save", "b"}).find("--save"), std::string::npos);
}

TEST(FCommandLine, PrintsItsHelp)
{
	const FCommandLine Result = Parse({"--help"});
	EXPECT_EQ(Result.Status, EExitStatus::Done);
	EXPECT_NE(Result.Output.find("create"), std::string::npos);
}

TEST(FCommandLine, PrintsTheHelpOfCreate)
{
	const FCommandLine Result = Parse({"create", "--help"});
	EXPECT_EQ(Result.Status, EExitStatus::Done);
	EXPECT_NE(Result.Output.find("--screenshot PNG"), std::string::npos);
}

TEST(FCommandLine, PrintsItsVersion)
{
	const FCommandLine Result = Parse({"--version"});
	EXPECT_EQ(Result.Status, EExitStatus::Done);
	EXPECT_EQ(Result.Output.substr(0, 15), "quillon-editor ");
}

TEST(FCommandLine, ReadsEveryOptionOfDrive)
{
	const FCommandLine Result = Parse({"drive", "a", "--view", "null", "--saved", "b"});
	ASSERT_TRUE(Result.Drive.has_value()) << Result.ErrorLine;
	EXPECT_EQ(Result.Drive->File, "a");
	EXPECT_EQ(Result.Drive->SavedDir, "b");
	EXPECT_FALSE(Result.Drive->bWorker);
	EXPECT_FALSE(Result.Create.has_value());
}

TEST(FCommandLine, DrivesFromStandardInputByDefault)
{
	const FCommandLine Result = Parse({"drive"});
	ASSERT_TRUE(Result.Drive.has_value()) << Result.ErrorLine;
	EXPECT_FALSE(Result.Drive->File || Result.Drive->SavedDir);
}

TEST(FCommandLine, RefusesViewsThatThereAreNot)
{
	EXPECT_NE(RefusalOf({"drive", "--view", "Null"}).find("--view"), std::string::npos);
	EXPECT_NE(RefusalOf({"drive", "a", "b"}), "");
}

TEST(FCommandLine, KeepsTheDriversWorkerToItself)
{
	const FCommandLine Result = Parse({"drive-worker", "--saved=-b"});
	ASSERT_TRUE(Result.Drive.has_value()) << Result.ErrorLine;
	EXPECT_TRUE(Result.Drive->bWorker);
	EXPECT_EQ(Result.Drive->SavedDir, "-b");
	EXPECT_EQ(Parse({"--help"}).Output.find("worker"), std::string::npos);
	EXPECT_NE(Parse({"--help"}).Output.find("drive"), std::string::npos);
}
