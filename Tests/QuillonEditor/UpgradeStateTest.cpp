// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include <filesystem>

#include "AuthDelegates.h"
#include "Kismet/GameplayStatics.h"
#include "Modules/ModuleManager.h"
#include "OtherSaveGame.h"
#include "PlatformFeatures.h"
#include "UObject/Class.h"
#include "ZAVSaveGame.h"

using nlohmann::json;

extern "C" void RegisterReflection_QuillonEditorTests();

/** What is remembered of releases: in the module, in the slot, from one start to the next. */
class FUpgradeState : public FUpgradeEditor
{
protected:
	/** Announces it; whether it was offered. Takes the notification off the screen. */
	bool IsOffered(const std::string& Address)
	{
		Announce("1", Address);
		const size_t Shown = CountNotifications();
		EXPECT_LE(Shown, 1U);
		if (Shown == 1)
		{
			Press(0, "Remind me later");
		}
		return Shown == 1;
	}
	void Skip(const std::string& Address)
	{
		Announce("1", Address);
		Press(0, "Skip version");
	}
	/** Loads the module where the save games are these. */
	void ReloadOn(FTestSaveGames& SaveGames)
	{
		Module("unload");
		IPlatformFeaturesModule::Get().SetSaveGameSystem(&SaveGames);
		Module("load");
	}
	void Module(const char* Action, const char* Name = "QuillonEditor")
	{
		Ask({{"do", "module"}, {"name", Name}, {"action", Action}});
	}
};

TEST_F(FUpgradeState, IsEmptyAtFirstWithoutASlot)
{
	EXPECT_EQ(ReadSlot(), "(none)");
	EXPECT_EQ(CountSaves(), 0);
	EXPECT_FALSE(std::filesystem::exists(GetSlotFile()));
}

TEST_F(FUpgradeState, GoesToTheSlotWithTheReleaseThatWasOfferedBefore)
{
	AnnounceRelease("2.1");
	EXPECT_EQ(ReadSlot(), "keep ");
	AnnounceRelease("2.2");
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip");
	AnnounceRelease("2.2");
	EXPECT_EQ(ReadSlot(), "keep Release_2.2.zip");
	EXPECT_EQ(CountSaves(), 3) << "each is offered";
}

TEST_F(FUpgradeState, GoesToTheSlotWithTheReleaseThatIsSkipped)
{
	AnnounceRelease("2.1");
	Press(0, "Skip version");
	EXPECT_EQ(ReadSlot(), "skip Release_2.1.zip");
	EXPECT_EQ(CountSaves(), 2);
}

TEST_F(FUpgradeState, StaysAsItIsWhenASkippedReleaseIsAnnounced)
{
	Skip("https://corvane.example/Release_2.1.zip");
	const std::string Slot = FTemporaryFolder::ReadFile(GetSlotFile());
	for (const char* Address : {"https://corvane.example/Release_2.1.zip", "http://mirror.example/a/Release_2.1.zip",
			 "/Release_2.1.zip", "Release_2.1.zip"})
	{
		Announce("another version", Address);
		EXPECT_EQ(CountNotifications(), 0U) << Address;
	}
	EXPECT_EQ(CountSaves(), 2);
	EXPECT_EQ(FTemporaryFolder::ReadFile(GetSlotFile()), Slot);
}

TEST_F(FUpgradeState, LosesTheSkipToAnotherRelease)
{
	Skip("https://corvane.example/Release_2.1.zip");
	AnnounceRelease("2.2");
	EXPECT_EQ(GetVersions(), FLog{"2.2"});
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip");
	Press(0, "Remind me later");
	EXPECT_TRUE(IsOffered("https://corvane.example/Release_2.1.zip")) << "skipped once, offered again";
}

TEST_F(FUpgradeState, TellsReleasesApartByTheLastPartOfTheAddressLetterForLetter)
{
	Skip("https://corvane.example/Release_2.1.zip");
	for (const char* Address : {"https://corvane.example/release_2.1.zip", "https://corvane.example/Release_2.1.ZIP",
			 "https://corvane.example/Release_2.1.zip/", "https://corvane.example/Release_2.1.zip?a",
			 "https://corvane.example/2.1.zip", "https://corvane.example/aRelease_2.1.zip", "elease_2.1.zip",
			 "https://corvane.example/Release_2.1.zip ", "https://corvane.example\\Release_2.1.zip", ""})
	{
		EXPECT_TRUE(IsOffered(Address)) << Address;
		Skip("https://corvane.example/Release_2.1.zip");
		EXPECT_EQ(ReadSlot(), "skip Release_2.1.zip");
		EXPECT_FALSE(IsOffered("https://corvane.example/Release_2.1.zip"));
	}
}

TEST_F(FUpgradeState, KnowsAReleaseWithoutAName)
{
	EXPECT_TRUE(IsOffered("")) << "an empty one equals the one that is remembered, but was not skipped";
	Skip("https://corvane.example/");
	EXPECT_EQ(ReadSlot(), "skip ");
	EXPECT_FALSE(IsOffered("https://corvane.example/"));
	EXPECT_FALSE(IsOffered(""));
	EXPECT_FALSE(IsOffered("/"));
	EXPECT_TRUE(IsOffered("https://corvane.example"));
}

TEST_F(FUpgradeState, KeepsIdentifiersOfAnyCharactersOverARestart)
{
	for (const std::string& Identifier :
		{std::string("plain"), std::string("a b\tc\nd"), std::string("{0}"), std::string("\xD7\xA2\xD7\x91"),
			std::string("\xF0\x9F\x98\x80.zip"), std::string("\\..\\"), std::string(5000, 'x')})
	{
		Skip("https://corvane.example/" + Identifier);
		EXPECT_EQ(ReadSlot(), "skip " + Identifier);
		RestartEditor();
		EXPECT_FALSE(IsOffered("other/" + Identifier)) << Identifier;
	}
}

TEST_F(FUpgradeState, IsNotTouchedByTheOtherTwoButtons)
{
	for (const char* Button : {"Remind me later", "Download now"})
	{
		AnnounceRelease("2.1");
		const std::string Slot = ReadSlot();
		const int Saves = CountSaves();
		Press(0, Button);
		EXPECT_EQ(ReadSlot(), Slot) << Button;
		EXPECT_EQ(CountSaves(), Saves) << Button;
		AnnounceRelease("2.1");
		EXPECT_EQ(CountNotifications(), 1U) << Button;
		RestartEditor();
		AnnounceRelease("2.1");
		EXPECT_EQ(CountNotifications(), 1U) << Button;
		RestartEditor();
	}
}

TEST_F(FUpgradeState, KeepsASkippedReleaseOverRestartsOfModuleAndEditor)
{
	AnnounceRelease("2.1");
	Press(0, "Skip version");
	for (int Round = 0; Round < 2; ++Round)
	{
		RestartModule();
		AnnounceRelease("2.1");
		EXPECT_EQ(CountNotifications(), 0U);
		RestartEditor();
		AnnounceRelease("2.1");
		EXPECT_EQ(CountNotifications(), 0U);
	}
	EXPECT_EQ(ReadSlot(), "skip Release_2.1.zip");
	AnnounceRelease("2.2");
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip");
}

TEST_F(FUpgradeState, TakesTheIdentifierFromTheSlotAsWell)
{
	AnnounceRelease("2.1");
	AnnounceRelease("2.2");
	RestartEditor();
	EXPECT_EQ(CountSaves(), 0) << "a start writes nothing";
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip");
	AnnounceRelease("2.3");
	EXPECT_EQ(ReadSlot(), "keep Release_2.1.zip") << "2.2 was offered, but not saved";
}

TEST_F(FUpgradeState, FitsNoReleaseWhenTheSlotNamesOneThatNoAddressCanHave)
{
	UZAVSaveGame* Saved = NewObject<UZAVSaveGame>();
	Saved->bSkipVersion = true;
	Saved->OfferedVersion = TEXT("download/Release_2.1.zip");
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(Saved, TEXT("ZAVQuillon"), 0));
	RestartEditor();
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 1U);
	EXPECT_EQ(ReadSlot(), "keep download/Release_2.1.zip");
}

TEST_F(FUpgradeState, IsKeptInTheModuleAloneWithoutSaveGames)
{
	RestartEditor(false);
	AnnounceRelease("2.1");
	EXPECT_EQ(GetVersions(), FLog{"2.1"});
	Press(0, "Skip version");
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 0U);
	RestartModule();
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 1U);
	EXPECT_EQ(CountSaves(), 0);
	EXPECT_EQ(Ask("outside")["messages"], json::array());
	EXPECT_EQ(Folder.List(), FLog());
}

TEST_F(FUpgradeState, StaysEmptyWhenTheSlotCannotBeRead)
{
	Skip("https://corvane.example/Release_2.1.zip");
	const std::string Slot = FTemporaryFolder::ReadFile(GetSlotFile());
	std::string Altered = Slot;
	Altered[Slot.size() / 2] = static_cast<char>(Altered[Slot.size() / 2] ^ 1);
	for (const std::string& Bytes : {std::string(), Slot.substr(0, Slot.size() - 1), Altered, std::string("no slot")})
	{
		Folder.Write("SaveGames/ZAVQuillon.sav", Bytes);
		::testing::internal::CaptureStderr();
		RestartEditor();
		EXPECT_EQ(Ask("outside")["messages"], json::array());
		AnnounceRelease("2.1");
		EXPECT_NE(::testing::internal::GetCapturedStderr().find("; kept as "), std::string::npos);
		EXPECT_EQ(CountNotifications(), 1U);
		EXPECT_EQ(ReadSlot(), "keep ");
		Press(0, "Skip version");
		RestartEditor();
		AnnounceRelease("2.1");
		EXPECT_EQ(CountNotifications(), 0U) << "the slot is good again";
	}
}

TEST_F(FUpgradeState, StaysEmptyWhenTheSlotHoldsAnotherClass)
{
	RegisterReflection_QuillonEditorTests();
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(
		UGameplayStatics::CreateSaveGameObject(UOtherSaveGame::StaticClass()), TEXT("ZAVQuillon"), 0));
	ASSERT_NE(UGameplayStatics::LoadGameFromSlot(TEXT("ZAVQuillon"), 0), nullptr) << "it can be read";
	RestartEditor();
	::testing::internal::CaptureStderr();
	AnnounceRelease("2.1");
	EXPECT_NE(::testing::internal::GetCapturedStderr().find("; kept as "), std::string::npos);
	EXPECT_EQ(CountNotifications(), 1U);
	EXPECT_EQ(ReadSlot(), "keep ");
}

TEST_F(FUpgradeState, StaysInTheModuleWhenASaveFails)
{
	FTestSaveGames SaveGames;
	SaveGames.bSaves = false;
	ReloadOn(SaveGames);
	AnnounceRelease("2.1");
	Press(0, "Skip version");
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 0U);
	EXPECT_EQ(SaveGames.Calls, (FLog{"exists ZAVQuillon 0", "save ZAVQuillon 0", "save ZAVQuillon 0"}));
	EXPECT_EQ(Ask("outside")["messages"], json::array());
}

TEST_F(FUpgradeState, IsReadOnceAtStartAndOnlyFromASlotThatIsThere)
{
	FTestSaveGames SaveGames;
	ASSERT_TRUE(UGameplayStatics::SaveGameToMemory(NewObject<UZAVSaveGame>(), SaveGames.Bytes));
	SaveGames.bHidden = true;
	ReloadOn(SaveGames);
	EXPECT_EQ(SaveGames.Calls, FLog{"exists ZAVQuillon 0"});
	SaveGames.bHidden = false;
	SaveGames.Calls.clear();
	RestartModule();
	EXPECT_EQ(SaveGames.Calls, (FLog{"exists ZAVQuillon 0", "load ZAVQuillon 0"}));
}

TEST_F(FUpgradeState, IsKeptInTheSlotThatTheClassNames)
{
	UZAVSaveGame* Defaults = GetMutableDefault<UZAVSaveGame>();
	const FString SlotName = Defaults->SaveSlotName;
	Defaults->SaveSlotName = TEXT("Theirs");
	Defaults->UserIndex = 3;
	FTestSaveGames SaveGames;
	SaveGames.Bytes = {1};
	ReloadOn(SaveGames);
	AnnounceRelease("2.1");
	EXPECT_EQ(SaveGames.Calls, (FLog{"exists Theirs 3", "load Theirs 3", "save Theirs 3"}));
	Defaults->SaveSlotName = SlotName;
	Defaults->UserIndex = 0;
}

TEST_F(FUpgradeState, IsReadAfterTheDetailsLayoutsAndBeforeAnnouncementsAreHeard)
{
	Module("unload");
	Module("unload", "PropertyEditor");
	FTestSaveGames SaveGames;
	int32 Handlers = -1;
	bool bLayouts = false;
	SaveGames.OnExists = [&]()
	{
		Handlers = AuthDelegates::OnUpgradeAvailable.GetBindingCount();
		bLayouts = FModuleManager::Get().IsModuleLoaded("PropertyEditor");
	};
	IPlatformFeaturesModule::Get().SetSaveGameSystem(&SaveGames);
	Module("load");
	EXPECT_EQ(Handlers, 0);
	EXPECT_TRUE(bLayouts);
	EXPECT_EQ(AuthDelegates::OnUpgradeAvailable.GetBindingCount(), 1);
}
