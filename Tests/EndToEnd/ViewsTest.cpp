// Copyright Corvane. MIT License.
// The same session in both views, whatever it consists of: sessions that a generator makes up, always the same ones.
#include <gtest/gtest.h>

#include "ChildProcess.h"
#include "TemporaryFolder.h"

#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace
{
	constexpr int RequestsInASession = 60;

	class FSession
	{
	public:
		explicit FSession(unsigned Seed) : Random(Seed) {}

		std::string Make()
		{
			std::string Lines;
			for (int Index = 0; Index < RequestsInASession; ++Index)
			{
				Lines += MakeRequest() + "\n";
			}
			return Lines + R"({"do":"level"})" + "\n" + R"({"do":"registered"})" + "\n" + R"({"do":"outside"})" + "\n";
		}

	private:
		std::string Pick(const std::vector<std::string>& Choices)
		{
			return Choices[std::uniform_int_distribution<size_t>(0, Choices.size() - 1)(Random)];
		}
		std::string PickName() { return Pick({"Main", "Stage Left", "A", "", "a/b", "ä 😀", "cam"}); }
		std::string PickClass()
		{
			return Pick({"ZAVCineCamCapture", "ZAVSpoutSenderManager", "ZAVSpoutReceiverManager", "Nothing"});
		}
		std::string PickActor()
		{
			return Pick({"ZAVCineCamCapture_0", "ZAVSpoutReceiverManager_0", "Senders", "Receivers", "CameraLeft"});
		}
		std::string PickRow()
		{
			return Pick({"Bloom", "Fog", "SpoutReceivers[0].Name", "SpoutReceivers[0].Active", "TextureTarget",
				"SpoutSenders[0].SpoutSenderName", "none of them"});
		}

		std::string MakeRequest()
		{
			switch (std::uniform_int_distribution<int>(0, 17)(Random))
			{
				case 0:
					return R"({"do":"place","class":")" + PickClass() + R"(","location":[0,0,0],"rotation":[0,0,0]})";
				case 1:
					return R"({"do":"select","actors":[")" + PickActor() + R"("]})";
				case 2:
					return R"({"do":"choose","button":"Corvane","entry":"Cine Stream Wizard"})";
				case 3:
				case 4:
					return R"({"do":")" + Pick({"type", "paste"}) + R"(","tab":"CineStreamWizard","text":")" +
						PickName() + R"(","commit":")" + Pick({"none", "enter", "focus"}) + R"("})";
				case 5:
				case 6:
					return R"({"do":"click","tab":"CineStreamWizard","text":")" +
						Pick({"Create Instant Cinestream Output", "Create Another Cinestream Output", "Try Again"}) +
						R"("})";
				case 7:
					return R"({"do":"details"})";
				case 8:
					return R"({"do":"tick","row":")" + PickRow() + R"(","state":")" + Pick({"checked", "unchecked"}) +
						R"("})";
				case 9:
					return R"({"do":"set","row":")" + PickRow() + R"(","value":")" + PickName() + R"("})";
				case 10:
					return R"({"do":"pick","row":")" + PickRow() + R"(","option":)" + Pick({"0", "1", "\"A\""}) + "}";
				case 11:
					return R"({"do":")" + Pick({"undo", "redo"}) + R"("})";
				case 12:
					return R"({"do":"senders","names":[)" + Pick({"", R"("A")", R"("A","cam")", R"("B","A")"}) + "]}";
				case 13:
					return R"({"do":"announce","version":")" + PickName() + R"(","address":"https://corvane.example/)" +
						Pick({"a", "b", ""}) + R"("})";
				case 14:
					return R"({"do":"press","notification":)" + Pick({"0", "1"}) + R"(,"button":")" +
						Pick({"Download now", "Remind me later", "Skip version"}) + R"("})";
				case 15:
					return R"({"do":"widgets","tab":"CineStreamWizard"})";
				case 16:
					return Pick({R"({"do":"advance","seconds":1})", R"({"do":"collect"})",
						R"({"do":"close-tab","tab":"CineStreamWizard"})",
						R"({"do":"open-level","file":"Samples/studio.json"})", R"({"do":"new-level"})"});
				default:
					return Pick({R"({"do":"restart","what":"module"})", R"({"do":"tabs"})", R"({"do":"notifications"})",
						R"({"do":"level"})"});
			}
		}

		std::mt19937 Random;
	};

	std::vector<std::string> Play(const std::string& File, const std::string& View)
	{
		FChildProcess::FOptions Options;
		Options.Directory = std::string(QUILLON_SAMPLES_DIR) + "/..";
		const FTemporaryFolder Saved;
		const FChildProcess Run =
			FChildProcess::Run({"drive", File, "--view", View, "--saved", Saved.File("")}, Options);
		EXPECT_EQ(Run.Status, 0) << Run.Errors;
		std::vector<std::string> Lines;
		std::istringstream Stream(Run.Output);
		for (std::string Line; std::getline(Stream, Line);)
		{
			Lines.push_back(Line);
		}
		return Lines;
	}
}

class FViews : public ::testing::TestWithParam<unsigned>
{};

TEST_P(FViews, GiveTheSameAnswers)
{
	const FTemporaryFolder Folder;
	const std::string Session = FSession(GetParam()).Make();
	const std::string File = Folder.Write("session.jsonl", Session);
	const std::vector<std::string> Null = Play(File, "null");
	const std::vector<std::string> Window = Play(File, "qt");
	ASSERT_EQ(Null.size(), static_cast<size_t>(RequestsInASession + 3));
	ASSERT_EQ(Window.size(), Null.size());
	std::istringstream Requests(Session);
	for (size_t Index = 0; Index < Null.size(); ++Index)
	{
		std::string Request;
		std::getline(Requests, Request);
		EXPECT_EQ(Window[Index], Null[Index]) << "line " << Index + 1 << ": " << Request;
	}
}

INSTANTIATE_TEST_SUITE_P(Sessions, FViews, ::testing::Range(1U, 21U));
