// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "AutomationBridge.h"
#include "Modules/ModuleManager.h"

namespace
{
	int NumRegistered = 0;
	int NumRegisteredAgain = 0;

	/** Asks this program for the automation spec that fails, which is no part of a plain run. */
	constexpr const char* FailingSwitch = "--with-failing-spec";

	/** Runs this program for the cases of one suite. */
	std::string RunSuite(const std::string& Suite, const std::string& Switch, int& OutStatus)
	{
		const std::string Command =
			"'" + ::testing::internal::GetArgvs()[0] + "' --gtest_filter='" + Suite + ".*' " + Switch + " 2>&1";
		std::string Output;
		std::FILE* const Pipe = popen(Command.c_str(), "r");
		for (int Char; (Char = std::fgetc(Pipe)) != EOF;)
		{
			Output.push_back(static_cast<char>(Char));
		}
		OutStatus = pclose(Pipe);
		return Output;
	}

	bool IsRegistered(const std::string& Suite, const std::string& Name)
	{
		const ::testing::UnitTest& Program = *::testing::UnitTest::GetInstance();
		for (int SuiteIndex = 0; SuiteIndex < Program.total_test_suite_count(); ++SuiteIndex)
		{
			const ::testing::TestSuite& Candidate = *Program.GetTestSuite(SuiteIndex);
			for (int Index = 0; Suite == Candidate.name() && Index < Candidate.total_test_count(); ++Index)
			{
				if (Name == Candidate.GetTestInfo(Index)->name())
				{
					return true;
				}
			}
		}
		return false;
	}
}

TEST(FAutomationBridge, NamesCasesBySpecAndSentence)
{
	EXPECT_TRUE(IsRegistered("Bridge_Passing_spec", "A_group_should_pass_whatever"));
}

TEST(FAutomationBridge, NumbersANameThatComesAgain)
{
	EXPECT_TRUE(IsRegistered("Bridge_Passing_spec", "A_group_should_pass_whatever_2"));
}

TEST(FAutomationBridge, RegistersEachCaseOnce)
{
	EXPECT_EQ(NumRegistered, 2);
	EXPECT_EQ(NumRegisteredAgain, 0);
}

TEST(FAutomationBridge, PassingCasePasses)
{
	int Status = -1;
	const std::string Output = RunSuite("Bridge_Passing_spec", "", Status);
	EXPECT_EQ(Status, 0) << Output;
	EXPECT_NE(Output.find("[  PASSED  ] 2 tests"), std::string::npos) << Output;
	EXPECT_NE(Output.find("A line of information"), std::string::npos) << Output;
}

TEST(FAutomationBridge, FailingCaseFailsWithEachErrorAndItsPlace)
{
	int Status = 0;
	const std::string Output = RunSuite("Bridge_Failing_spec", FailingSwitch, Status);
	EXPECT_NE(Status, 0) << Output;
	EXPECT_NE(Output.find("Tests/CoreModules/CoreTestFailingSpecs.cpp:"), std::string::npos) << Output;
	EXPECT_NE(Output.find("Expected 'Number' to be 2, but it was 1."), std::string::npos) << Output;
	EXPECT_NE(Output.find("And goes on"), std::string::npos) << Output;
	EXPECT_NE(Output.find("1 FAILED TEST"), std::string::npos) << Output;
}

int main(int ArgumentCount, char** Arguments)
{
	::testing::InitGoogleTest(&ArgumentCount, Arguments);
	FModuleManager::Get().AddBinariesDirectory(TEXT(CORE_TEST_MODULES), false);
	FModuleManager::Get().LoadModuleChecked("CoreTestSpecs");
	if (ArgumentCount > 1 && std::string(Arguments[1]) == FailingSwitch)
	{
		FModuleManager::Get().LoadModuleChecked("CoreTestFailingSpecs");
	}
	NumRegistered = FAutomationBridge::RegisterSpecs();
	NumRegisteredAgain = FAutomationBridge::RegisterSpecs();
	return RUN_ALL_TESTS();
}
