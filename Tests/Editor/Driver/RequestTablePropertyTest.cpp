// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <rapidcheck/gtest.h>

#include "Driver/RequestTable.h"

#include "EditorStateFixture.h"

using nlohmann::json;

namespace
{
	/** Lines that would be carried out, to be spoilt. Nothing that writes files. */
	const std::vector<std::string> SoundLines = {R"({"do":"level"})", R"({"do":"invoke-tab","tab":"CineStreamWizard"})",
		R"({"do":"type","tab":"CineStreamWizard","text":"Main","commit":"enter"})",
		R"({"do":"click","tab":"CineStreamWizard","text":"Create Instant Cinestream Output"})",
		R"({"do":"view","location":[1,2.5,-3e2],"rotation":[0,90,0]})",
		R"({"do":"viewports","clients":[{"world":0},{"world":1}],"active":1})",
		R"({"do":"place","class":"ZAVCineCamCapture","location":[0,0,0],"rotation":[0,0,0]})",
		R"({"do":"choose","button":"Corvane","entry":"Cine Stream Wizard"})", R"({"do":"select","actors":["A","B"]})",
		R"({"do":"geometry","tab":"CineStreamWizard","type":"SButton","index":0})",
		R"({"do":"advance","seconds":1.5})"};

	/** A sound line with a few bytes changed, dropped or put in. */
	rc::Gen<std::string> SpoiltLine()
	{
		return rc::gen::exec(
			[]()
			{
				std::string Line = *rc::gen::elementOf(SoundLines);
				const int Changes = *rc::gen::inRange(0, 4);
				for (int Change = 0; Change < Changes; ++Change)
				{
					const auto Place = *rc::gen::inRange<size_t>(0, Line.size());
					const char Byte = *rc::gen::arbitrary<char>();
					const int Kind = *rc::gen::inRange(0, 3);
					Kind == 0 ? Line.replace(Place, 1, 1, Byte)
							  : (Kind == 1 ? Line.erase(Place, 1) : Line.insert(Place, 1, Byte));
				}
				return Line;
			});
	}
}

class FRequestTableProperty : public FEditorStateFixture
{};

RC_GTEST_FIXTURE_PROP(FRequestTableProperty, AnswersAnyLinesAndChangesNothingWhereItRefuses, ())
{
	const std::vector<std::string> Lines = *rc::gen::container<std::vector<std::string>>(SpoiltLine());
	for (const std::string& Line : Lines)
	{
		const std::string Before = DescribeState();
		const std::string Text = FRequestTable::Answer(Session, Line);
		RC_ASSERT(Text.find('\n') == std::string::npos);
		const json Answer = json::parse(Text);
		RC_ASSERT(Answer.contains("do"));
		const bool bOk = Answer.at("ok").get<bool>();
		RC_ASSERT(bOk != Answer.contains("error"));
		RC_ASSERT(bOk || DescribeState() == Before);
	}
}
