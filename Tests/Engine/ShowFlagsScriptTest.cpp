// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace
{
	std::string ReadFile(const fs::path& Path)
	{
		std::ostringstream Text;
		Text << std::ifstream(Path, std::ios::binary).rdbuf();
		return Text.str();
	}

	/** Runs the script that turns the table of show flags into C++, over tables of the test's own. */
	class FShowFlagsScriptTest : public ::testing::Test
	{
	protected:
		FShowFlagsScriptTest()
		{
			std::string Pattern = (fs::temp_directory_path() / "ShowFlagsXXXXXX").string();
			EXPECT_NE(mkdtemp(Pattern.data()), nullptr);
			Folder = Pattern;
		}
		~FShowFlagsScriptTest() override { fs::remove_all(Folder); }

		bool Run(const std::string& Table)
		{
			std::ofstream(Folder / "flags.csv", std::ios::binary) << Table;
			const std::string Command = "cd '" + Folder.string() +
				"' && '" CMAKE_PROGRAM "' -D INPUT=flags.csv -D OUTPUT=flags.inl -P '" SHOW_FLAGS_SCRIPT "' 2>messages";
			const int Status = std::system(Command.c_str());
			Messages = ReadFile(Folder / "messages");
			return WIFEXITED(Status) && WEXITSTATUS(Status) == 0;
		}
		void ExpectRefused(const std::string& Table, const std::string& Message)
		{
			EXPECT_FALSE(Run(Table)) << Table;
			EXPECT_NE(Messages.find(Message), std::string::npos) << Table << Messages;
			EXPECT_FALSE(fs::exists(Folder / "flags.inl"));
		}

		fs::path Folder;
		std::string Messages;
	};

	const std::string Head = "index,name,group,display_name,default_on_in_game_view,certainty\n";
	const std::string First = "0,Fog,SFG_Normal,The fog (all of it),1,verified\n";
}

TEST_F(FShowFlagsScriptTest, WritesALineForEachFlag)
{
	EXPECT_TRUE(Run(Head + First + "1,Rain2,SFG_Transient,Rain,0,inferred\n")) << Messages;
	EXPECT_EQ(ReadFile(Folder / "flags.inl"),
		"// Written by ShowFlagTable.cmake.\nSHOW_FLAG(Fog, SFG_Normal, \"The fog (all of it)\", 1)\n"
		"SHOW_FLAG(Rain2, SFG_Transient, \"Rain\", 0)\n");
}

TEST_F(FShowFlagsScriptTest, RefusesATableWithoutItsColumnsOrFlags)
{
	ExpectRefused("", "flags.csv:0: no flags");
	ExpectRefused(Head, "flags.csv:1: no flags");
	ExpectRefused(First, "flags.csv:1: unknown columns");
	ExpectRefused(Head + "0,Fog,SFG_Normal,Fog,1,verified", "flags.csv:2: the line does not end");
}

TEST_F(FShowFlagsScriptTest, RefusesALineThatIsNoRow)
{
	for (const char* Line : {"", "1,Rain", "x,Rain,SFG_Normal,Rain,1,verified", "1,,SFG_Normal,Rain,1,verified",
			 "1,Ra in,SFG_Normal,Rain,1,verified", "1,2Rain,SFG_Normal,Rain,1,verified",
			 "1,Rain,SFG_Normal,,1,verified", "1,Rain,SFG_Normal,Ra\"in,1,verified", "1,Rain,SFG_Normal,a;b,1,verified",
			 "1,Rain,SFG_Normal,a\\nb,1,verified", "1,Rain,SFG_Normal,[Rain],1,verified",
			 "1,Rain,SFG_Normal,Rain,2,verified", "1,Rain,SFG_Normal,Rain,,verified", "1,Rain,SFG_Normal,Rain,1,maybe",
			 "1,Rain,SFG_Normal,Rain,1,verified,"})
	{
		ExpectRefused(Head + First + Line + "\n" + First, "flags.csv:3: no row of a flag");
	}
}

TEST_F(FShowFlagsScriptTest, RefusesARowThatDoesNotFitTheOthers)
{
	ExpectRefused(Head + First + "2,Rain,SFG_Normal,Rain,1,verified\n", "flags.csv:3: the index is not 1");
	ExpectRefused(Head + First + "01,Rain,SFG_Normal,Rain,1,verified\n", "flags.csv:3: the index is not 1");
	ExpectRefused(Head + First + "1,fOG,SFG_Normal,Rain,1,verified\n", "flags.csv:3: a second flag fOG");
	ExpectRefused(Head + First + "1,Rain,SFG_Max,Rain,1,verified\n", "flags.csv:3: unknown group SFG_Max");
	ExpectRefused(Head + First + "1,Rain,SFG_Nor,Rain,1,verified\n", "flags.csv:3: unknown group SFG_Nor");
}
