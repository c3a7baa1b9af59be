// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <iostream>
#include <set>
#include <string>
#include <utility>

#include "AutomationBridge.h"

#include "Misc/AutomationTest.h"

namespace
{
	/** One It. */
	class FSpecCase : public ::testing::Test
	{
	public:
		explicit FSpecCase(const FAutomationTestInfo& InInfo) : Info(InInfo) {}

		virtual void TestBody() override
		{
			const FAutomationTestExecutionInfo Result = Info.Test->RunCase(Info.CaseIndex);
			for (const FString& Line : Result.Infos)
			{
				std::cout << TCHAR_TO_UTF8(*Line) << "\n";
			}
			for (const FString& Error : Result.Errors)
			{
				ADD_FAILURE_AT(TCHAR_TO_UTF8(*Info.SourceFile), Info.SourceLine) << TCHAR_TO_UTF8(*Error);
			}
		}

	private:
		FAutomationTestInfo Info;
	};

	std::string MakeValidName(const FString& Name)
	{
		std::string Result;
		for (const char Char : std::string(TCHAR_TO_UTF8(*Name)))
		{
			const bool bLetter = (Char >= 'a' && Char <= 'z') || (Char >= 'A' && Char <= 'Z');
			if (bLetter || (Char >= '0' && Char <= '9'))
			{
				Result.push_back(Char);
			}
			else if (!Result.empty() && Result.back() != '_')
			{
				Result.push_back('_');
			}
		}
		while (!Result.empty() && Result.back() == '_')
		{
			Result.pop_back();
		}
		return Result.empty() ? "Unnamed" : Result;
	}
}

int FAutomationBridge::RegisterSpecs()
{
	static std::set<std::pair<FAutomationTestBase*, int32>> Registered;
	static std::set<std::pair<std::string, std::string>> Names;
	int NumRegistered = 0;
	TArray<FAutomationTestInfo> Infos;
	FAutomationTestFramework::Get().GetValidTestNames(Infos);
	for (const FAutomationTestInfo& Info : Infos)
	{
		if (!Registered.emplace(Info.Test, Info.CaseIndex).second)
		{
			continue;
		}
		const std::string Suite = MakeValidName(Info.SuiteName);
		const std::string Plain = MakeValidName(Info.CaseName);
		std::string Name = Plain;
		for (int Number = 2; !Names.emplace(Suite, Name).second; ++Number)
		{
			Name = Plain + "_" + std::to_string(Number);
		}
		::testing::RegisterTest(Suite.c_str(), Name.c_str(), nullptr, nullptr, TCHAR_TO_UTF8(*Info.SourceFile),
			Info.SourceLine, [Info]() -> ::testing::Test* { return new FSpecCase(Info); });
		++NumRegistered;
	}
	return NumRegistered;
}
