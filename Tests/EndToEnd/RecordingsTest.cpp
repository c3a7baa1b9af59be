// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "ChildProcess.h"

#include "TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace
{
	namespace Files = std::filesystem;

	const std::string Folder = std::string(QUILLON_SAMPLES_DIR) + "/recordings";
	const std::string AnswersEnding = ".answers.jsonl";

	bool EndsWith(const std::string& Text, const std::string& Ending)
	{
		return Text.size() >= Ending.size() && Text.compare(Text.size() - Ending.size(), Ending.size(), Ending) == 0;
	}

	/** The names of the stories, without ending; of all files that end so. */
	std::vector<std::string> FindStories(const std::string& Ending)
	{
		std::vector<std::string> Names;
		for (const Files::directory_entry& Entry : Files::directory_iterator(Folder))
		{
			const std::string Name = Entry.path().filename().string();
			if (EndsWith(Name, Ending) && EndsWith(Name, AnswersEnding) == (Ending == AnswersEnding))
			{
				Names.push_back(Name.substr(0, Name.size() - Ending.size()));
			}
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}

	std::vector<std::string> SplitLines(const std::string& Text)
	{
		std::vector<std::string> Lines;
		std::istringstream Stream(Text);
		for (std::string Line; std::getline(Stream, Line);)
		{
			Lines.push_back(Line);
		}
		return Lines;
	}
}

/** A recorded story, by its name, in the view of that name. */
class FRecording : public ::testing::TestWithParam<std::tuple<std::string, std::string>>
{
protected:
	const std::string Story = std::get<0>(GetParam());
	const std::string View = std::get<1>(GetParam());
};

TEST_P(FRecording, GivesTheRecordedAnswers)
{
	FChildProcess::FOptions Options;
	Options.Directory = std::string(QUILLON_SAMPLES_DIR) + "/..";
	const FTemporaryFolder Saved;
	const FChildProcess Run = FChildProcess::Run(
		{"drive", "Samples/recordings/" + Story + ".jsonl", "--saved", Saved.File(""), "--view", View}, Options);
	EXPECT_EQ(Run.Status, 0) << Run.Errors;
	const std::vector<std::string> Requests = SplitLines(FTemporaryFolder::ReadFile(Folder + "/" + Story + ".jsonl"));
	const std::string RecordedText = FTemporaryFolder::ReadFile(Folder + "/" + Story + AnswersEnding);
	const std::vector<std::string> Recorded = SplitLines(RecordedText);
	const std::vector<std::string> Answers = SplitLines(Run.Output);
	ASSERT_EQ(Answers.size(), Requests.size());
	ASSERT_EQ(Recorded.size(), Requests.size());
	for (size_t Index = 0; Index < Requests.size(); ++Index)
	{
		// The one thing that only one of the views can do.
		if (View == "null" || Requests[Index].find("\"screenshot\"") == std::string::npos)
		{
			EXPECT_EQ(Answers[Index], Recorded[Index]) << "line " << Index + 1 << ": " << Requests[Index];
		}
	}
	EXPECT_TRUE(View != "null" || Run.Output == RecordedText) << "to the last byte";
}

INSTANTIATE_TEST_SUITE_P(Samples, FRecording,
	::testing::Combine(::testing::ValuesIn(FindStories(".jsonl")), ::testing::Values("null", "qt")),
	[](const ::testing::TestParamInfo<std::tuple<std::string, std::string>>& Info)
	{
		std::string Name = std::get<0>(Info.param) + "_" + std::get<1>(Info.param);
		std::replace(Name.begin(), Name.end(), '-', '_');
		return Name;
	});

TEST(FRecordings, HaveTheirAnswersBesideThem)
{
	EXPECT_EQ(FindStories(".jsonl"), FindStories(AnswersEnding));
	EXPECT_GE(FindStories(".jsonl").size(), 8U);
}
