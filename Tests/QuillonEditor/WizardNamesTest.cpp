// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "UserInput.h"

#include "Widgets/Input/SEditableTextBox.h"

// Hostile and unusual stream names. The entry's names are the typed name letter for letter; the asset's follows the
// rules for asset names.

namespace
{
	FString Repeat(TCHAR Char, int32 Count)
	{
		FString Result;
		Result.Reserve(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Result.AppendChar(Char);
		}
		return Result;
	}
}

class FWizardNames : public FWizardFixture
{
protected:
	/** Creates and expects a setup with the name as typed and an asset of this package. */
	void ExpectSetup(const FString& Name, const char* Package)
	{
		const std::string Utf8 = TCHAR_TO_UTF8(Name);
		EXPECT_EQ(Create(Name), "Cinestream '" + Utf8 + "' created!");
		const TArray<AActor*> Managers = GetActors(World(0), TEXT("ZAVSpoutSenderManager"));
		ASSERT_EQ(Managers.Num(), 1);
		EXPECT_EQ(GetSenders(Managers[0]).back(), Utf8 + "|" + Utf8 + "_Standalone");
		EXPECT_EQ(GetAssetPackages().back(), Package);
	}
	/** Creates and expects the failure page with nothing made. */
	void ExpectFailure(const FString& Name)
	{
		EXPECT_EQ(Create(Name), std::string("ERROR: Failed to create Cinestream '") + TCHAR_TO_UTF8(Name) + "'!");
		ExpectNoActors();
	}
	void ExpectRefusedAsEmpty(const FString& Name)
	{
		OpenWizard();
		Pages->EnterName(Name);
		EXPECT_EQ(GetWarning(), "! Stream Name cannot be empty.");
		Pages->PressButton();
		EXPECT_EQ(Pages->GetMessage(), "! Stream Name cannot be empty.");
		EXPECT_TRUE(GetAssetPackages().empty());
	}
};

TEST_F(FWizardNames, OfBlanksAreRefusedAsEmpty)
{
	ExpectRefusedAsEmpty("   ");
}

TEST_F(FWizardNames, OfAnIdeographicSpaceAreRefusedAsEmpty)
{
	ExpectRefusedAsEmpty(FString(TEXT("\u3000")));
}

TEST_F(FWizardNames, OfANoBreakSpaceAreNames)
{
	ExpectSetup(FString(TEXT("\u00A0")), "/Game/CineStream/\xC2\xA0");
}

TEST_F(FWizardNames, WithAFormatTokenAreTakenLiterally)
{
	ExpectSetup("{0}", "/Game/CineStream/_0_");
}

TEST_F(FWizardNames, WithAnOpenBraceAreTakenLiterally)
{
	ExpectSetup("{", "/Game/CineStream/_");
}

TEST_F(FWizardNames, WithABacktickAreTakenLiterally)
{
	ExpectSetup("`{0}`", "/Game/CineStream/__0__");
}

TEST_F(FWizardNames, WithAPrintfDirectiveAreTakenLiterally)
{
	ExpectSetup("%s", "/Game/CineStream/_s");
}

TEST_F(FWizardNames, OfTwoPointsDoNotLeaveTheFolder)
{
	ExpectSetup("..", "/Game/CineStream/__");
}

TEST_F(FWizardNames, WithABackslashAreTakenLiterally)
{
	ExpectSetup("a\\b", "/Game/CineStream/a_b");
}

TEST_F(FWizardNames, WithQuotesAreTakenLiterally)
{
	ExpectSetup("\"it's\"", "/Game/CineStream/_it_s_");
}

TEST_F(FWizardNames, WithAnEmojiAreTakenLiterally)
{
	ExpectSetup(FString(TEXT("\U0001F3A5")), "/Game/CineStream/\xF0\x9F\x8E\xA5");
}

TEST_F(FWizardNames, WrittenFromRightToLeftAreTakenLiterally)
{
	ExpectSetup(FString(TEXT("\u05D0\u05D1")), "/Game/CineStream/\xD7\x90\xD7\x91");
}

TEST_F(FWizardNames, WithALoneSurrogateKeepItInTheEntry)
{
	// Keyboards make no such text; the clipboard may hold it. As UTF-8 all of it would look alike, so the check of the
	// name is what tells the units.
	const TCHAR Units[] = {TEXT('a'), 0xD800, TEXT('b'), 0};
	OpenWizard();
	PasteName(Units);
	EXPECT_EQ(GetWarning(), "");
	Pages->PressButton();
	ASSERT_TRUE(HasButton("Create Another Cinestream Output"));
	Click("Create Another Cinestream Output");
	const TCHAR Other[] = {TEXT('a'), 0xD801, TEXT('b'), 0};
	PasteName(Other);
	EXPECT_EQ(GetWarning(), "");
	PasteName(Units);
	EXPECT_EQ(GetWarning(), "! Stream Name already defined, please use a differnt name.");
	PasteName(FString(Units) + TEXT("_Standalone"));
	EXPECT_EQ(GetWarning(), "! Stream Name already defined, please use a differnt name.");
}

TEST_F(FWizardNames, WithASlashGiveTheAssetTheirLastPart)
{
	ExpectSetup("a/b", "/Game/CineStream/b");
}

TEST_F(FWizardNames, WithASlashFailTheSecondTimeBecauseThePathIsTaken)
{
	ExpectSetup("a/b", "/Game/CineStream/b");
	Click("Create Another Cinestream Output");
	EXPECT_EQ(Create("c/b"), "ERROR: Failed to create Cinestream 'c/b'!");
	EXPECT_EQ(GetAssetPackages().size(), 1u);
}

TEST_F(FWizardNames, ThatEndInASlashFail)
{
	ExpectFailure("a/");
}

TEST_F(FWizardNames, ThatAreTooLongForAnAssetFail)
{
	ExpectFailure(Repeat(TEXT('x'), 100000));
}

TEST_F(FWizardNames, OfTheGreatestLengthSucceed)
{
	// "/Game/CineStream/" has 17 units, a package's name at most 1,023.
	const FString Name = Repeat(TEXT('x'), 1006);
	ExpectSetup(Name, ("/Game/CineStream/" + std::string(1006, 'x')).c_str());
}

TEST_F(FWizardNames, OneUnitLongerThanTheGreatestLengthFail)
{
	ExpectFailure(Repeat(TEXT('x'), 1007));
}

TEST_F(FWizardNames, OfATabAreRefusedAsEmpty)
{
	ExpectRefusedAsEmpty("\t");
}

TEST_F(FWizardNames, WithATabAreTakenLiterally)
{
	ExpectSetup("a\tb", "/Game/CineStream/a_b");
}

TEST_F(FWizardNames, WithASlashAreTakenOnceAnEntryHasThem)
{
	ExpectSetup("a/b", "/Game/CineStream/b");
	Click("Create Another Cinestream Output");
	EXPECT_EQ(Create("a/b"), "! Stream Name cannot be empty.");
	EXPECT_EQ(GetAssetPackages().size(), 1u);
}

TEST_F(FWizardNames, OfNothingAreRefusedAsEmpty)
{
	OpenWizard();
	Pages->PressButton();
	EXPECT_EQ(Pages->GetMessage(), "! Stream Name cannot be empty.");
}

TEST_F(FWizardNames, UsedTwiceRepeatInTheEntriesWhileTheAssetGetsANumber)
{
	ExpectSetup("Main", "/Game/CineStream/Main");
	Click("Create Another Cinestream Output");
	// The box still holds the name; committing it again does not check it again.
	ASSERT_TRUE(FUserInput::Focus(FWidgetFinder(Wizard.ToSharedRef()).GetEditBoxes()[0]));
	Pages->PressButton();
	EXPECT_EQ(Pages->GetMessage(), "Cinestream 'Main' created!");
	EXPECT_EQ(GetSenders(GetActors(World(0), TEXT("ZAVSpoutSenderManager"))[0]),
		(std::vector<std::string>{"Main|Main_Standalone", "Main|Main_Standalone"}));
	EXPECT_EQ(GetAssetPackages(), (std::vector<std::string>{"/Game/CineStream/Main", "/Game/CineStream/Main1"}));
}
