// Copyright Corvane. MIT License.
#include "CreateRun.h"

#include <gtest/gtest.h>

using nlohmann::json;

const std::string FWizardTexts::EmptyName = "! Stream Name cannot be empty.";
const std::string FWizardTexts::TakenName = "! Stream Name already defined, please use a differnt name.";

std::string FWizardTexts::Created(const std::string& Name)
{
	return "Cinestream '" + Name + "' created!";
}

std::string FWizardTexts::Failed(const std::string& Name)
{
	return "ERROR: Failed to create Cinestream '" + Name + "'!";
}

FCreateRun::FCreateRun(const std::string& Name, const std::vector<std::string>& Options)
{
	std::vector<std::string> Arguments = {"create", "--json"};
	Arguments.insert(Arguments.end(), Options.begin(), Options.end());
	Arguments.insert(Arguments.end(), {"--", Name});
	Process = FChildProcess::Run(Arguments);
	Answer = json::parse(Process.Output, nullptr, false);
	EXPECT_TRUE(Answer.is_object()) << Process.Output << Process.Errors;
}

void FCreateRun::ExpectCreated(const std::string& Name, const std::string& AssetPath) const
{
	ASSERT_TRUE(Answer.is_object());
	EXPECT_EQ(Process.Status, 0) << Process.Errors;
	EXPECT_EQ(Answer["ok"], true);
	EXPECT_EQ(Answer["message"], FWizardTexts::Created(Name));
	EXPECT_EQ(Answer["warning"], nullptr);
	EXPECT_EQ(Answer["asset"], AssetPath);
	EXPECT_TRUE(Answer["camera"].is_object());
	EXPECT_TRUE(Answer["manager"].is_object());
	const json Sender = {
		{"active", true}, {"name", Name}, {"standalone", Name + "_Standalone"}, {"renderTarget", AssetPath}};
	EXPECT_EQ(Answer["sender"], Sender);
}

void FCreateRun::ExpectRefused(const std::string& Message, const std::string& Warning) const
{
	ASSERT_TRUE(Answer.is_object());
	EXPECT_EQ(Process.Status, 1) << Process.Errors;
	const json Expected = {{"ok", false}, {"message", Message}, {"warning", Warning.empty() ? json() : json(Warning)},
		{"asset", nullptr}, {"camera", nullptr}, {"manager", nullptr}, {"sender", nullptr}};
	EXPECT_EQ(Answer, Expected);
}

std::string GetSample(const std::string& Name)
{
	return std::string(QUILLON_SAMPLES_DIR) + "/" + Name;
}
