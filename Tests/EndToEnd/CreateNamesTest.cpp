// Copyright Corvane. MIT License.
// `create` with names of every kind: the check of the wizard, and the setup under exactly the name that was given.
#include "CreateRun.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace
{
	struct FNameCase
	{
		const char* Title;
		const char* Name;
		const char* AssetName;
	};

	void PrintTo(const FNameCase& Case, std::ostream* Out)
	{
		*Out << Case.Title;
	}

	class FCreateNames : public ::testing::TestWithParam<FNameCase>
	{};
}

TEST_P(FCreateNames, MakesTheSetupLetterForLetter)
{
	const std::string Name = GetParam().Name;
	FCreateRun(Name).ExpectCreated(Name, std::string("/Game/CineStream/") + GetParam().AssetName);
}

INSTANTIATE_TEST_SUITE_P(FCreateNames, FCreateNames,
	::testing::Values(FNameCase{"Plain", "Main", "Main"}, FNameCase{"Blank", "Cam 1", "Cam_1"},
		FNameCase{"BlanksAround", " Main ", "_Main_"}, FNameCase{"NoBreakSpace", "\u00A0", "\u00A0"},
		FNameCase{"Placeholder", "{0}", "_0_"}, FNameCase{"Brace", "{", "_"}, FNameCase{"BackTick", "`", "_"},
		FNameCase{"PrintfDirective", "%s", "_s"}, FNameCase{"TwoDots", "..", "__"}, FNameCase{"Slash", "a/b", "b"},
		FNameCase{"Backslash", "a\\b", "a_b"}, FNameCase{"SingleQuotes", "'Main'", "_Main_"},
		FNameCase{"DoubleQuotes", "\"Main\"", "_Main_"}, FNameCase{"Emoji", "😀🎥", "😀🎥"},
		FNameCase{"RightToLeft", "שידור", "שידור"}, FNameCase{"Brackets", "[a,b]", "_a_b_"},
		FNameCase{"Dashes", "--json", "--json"}, FNameCase{"CombiningMark", "e\u0301", "e\u0301"},
		FNameCase{"TabWithin", "a\tb", "a_b"}, FNameCase{"ControlCharacter", "a\x01", "a_"}),
	[](const auto& Info) { return std::string(Info.param.Title); });

TEST(FCreateRefusals, AnEmptyNameAnswersWithTheEmptyNameWarning)
{
	// Nothing was typed, so nothing was warned of while typing.
	FCreateRun("").ExpectRefused(FWizardTexts::EmptyName, "");
}

TEST(FCreateRefusals, BlanksAreWarnedOfWhileTyping)
{
	FCreateRun("   ").ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::EmptyName);
}

TEST(FCreateRefusals, ATabIsWarnedOfAsEmpty)
{
	FCreateRun("\t").ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::EmptyName);
}

TEST(FCreateRefusals, ALineBreakIsNoNameThatTheBoxTakes)
{
	const FChildProcess Process = FChildProcess::Run({"create", "two\nlines"});
	EXPECT_EQ(Process.Status, 2);
	EXPECT_EQ(Process.Output, "");
	EXPECT_EQ(Process.Errors, "NAME: the wizard's box does not take these characters\n");
}

TEST(FCreateRefusals, ATakenNameIsWarnedOfWhileTypingAndEmptyAtTheEnd)
{
	FCreateRun("Stage Left", {"--level", GetSample("studio.json")})
		.ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::TakenName);
}

TEST(FCreateRefusals, ATakenStandaloneNameIsRefusedAsWell)
{
	FCreateRun("Stage Left_Standalone", {"--level", GetSample("studio.json")})
		.ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::TakenName);
}

TEST(FCreateRefusals, ANameOfTheSecondManagerIsRefusedAsWell)
{
	FCreateRun("Rehearsal", {"--level", GetSample("studio.json")})
		.ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::TakenName);
}

TEST(FCreateRefusals, ATakenNameInOtherLettersPasses)
{
	const FCreateRun Run("STAGE LEFT", {"--level", GetSample("studio.json")});
	Run.ExpectCreated("STAGE LEFT", "/Game/CineStream/STAGE_LEFT1");
}

TEST(FCreateRefusals, AHundredThousandCharactersFailOnTheAssetsName)
{
	const std::string Name(100'000, 'x');
	FCreateRun(Name).ExpectRefused(FWizardTexts::Failed(Name), "");
}

TEST(FCreateRefusals, TheSameNameTwiceIsRefusedTheSecondTime)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.File("level.json");
	FCreateRun("a/b", {"--save", Level}).ExpectCreated("a/b", "/Game/CineStream/b");
	FCreateRun("a/b", {"--level", Level}).ExpectRefused(FWizardTexts::EmptyName, FWizardTexts::TakenName);
}

TEST(FCreateRefusals, ASlashThatLeadsToATakenAssetShowsTheFailurePage)
{
	const FTemporaryFolder Folder;
	const std::string Level = Folder.File("level.json");
	FCreateRun("b", {"--save", Level}).ExpectCreated("b", "/Game/CineStream/b");
	// The name is free as "a/b", but only its last part names the asset.
	FCreateRun("a/b", {"--level", Level}).ExpectRefused(FWizardTexts::Failed("a/b"), "");
}
