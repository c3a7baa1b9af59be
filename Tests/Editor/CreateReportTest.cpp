// Copyright Corvane. MIT License.
#include "CreateReport.h"

#include <gtest/gtest.h>

namespace
{
	FCreateReport MakeReport()
	{
		FCreateReport Report;
		Report.Message = "Cinestream 'Main' created!";
		Report.Setup.emplace();
		Report.Setup->Asset = "/Game/CineStream/Main";
		Report.Setup->Camera = {"Camera", {0.1F, -2.0F, 3.0F}, {4.0F, 5.5F, 6.0F}};
		Report.Setup->Manager = {"Manager", true, 1};
		Report.Setup->Sender = {true, "Main", "Main_Standalone", "/Game/CineStream/Main"};
		return Report;
	}
}

TEST(FCreateReport, WritesOneJsonObjectWithTheKeysInTheirOrder)
{
	EXPECT_EQ(MakeReport().ToJson(),
		R"({"ok":true,"message":"Cinestream 'Main' created!","warning":null,"asset":"/Game/CineStream/Main",)"
		R"("camera":{"name":"Camera","location":[0.1,-2,3],"rotation":[4,5.5,6]},)"
		R"("manager":{"name":"Manager","spawned":true,"entries":1},)"
		R"("sender":{"active":true,"name":"Main","standalone":"Main_Standalone","renderTarget":"/Game/CineStream/Main"}})"
		"\n");
}

TEST(FCreateReport, WritesNullForWhatWasNotMade)
{
	FCreateReport Report;
	Report.Message = "failed";
	Report.Warning = "careful";
	EXPECT_EQ(Report.ToJson(),
		R"({"ok":false,"message":"failed","warning":"careful","asset":null,"camera":null,"manager":null,"sender":null})"
		"\n");
}

TEST(FCreateReport, WritesAlignedLinesForPeople)
{
	FCreateReport Report = MakeReport();
	Report.SavedTo = "out.json";
	EXPECT_EQ(Report.ToText(),
		"Cinestream 'Main' created!\n"
		"\n"
		"Render target  /Game/CineStream/Main\n"
		"Camera         Camera at 0.1, -2, 3, pitch 4, yaw 5.5, roll 6\n"
		"Sender manager Manager (new, 1 entry)\n"
		"Sender         Main\n"
		"  stand-alone  Main_Standalone\n"
		"Saved          out.json\n");
}

TEST(FCreateReport, TellsAManagerThatWasThereAlready)
{
	FCreateReport Report = MakeReport();
	Report.Setup->Manager = {"Manager", false, 3};
	EXPECT_NE(Report.ToText().find("Manager (already there, 3 entries)"), std::string::npos);
}

TEST(FCreateReport, TellsTheWarningThatStoodWhileTyping)
{
	FCreateReport Report;
	Report.Message = "failed";
	Report.Warning = "careful";
	EXPECT_EQ(Report.ToText(), "failed\nWhile typing   careful\n");
}

TEST(FCreateReport, KeepsControlCharactersOfNamesAwayFromTheTerminal)
{
	FCreateReport Report = MakeReport();
	Report.Setup->Sender.Name = "a\x1B[2J";
	EXPECT_EQ(Report.ToText().find('\x1B'), std::string::npos);
}
