// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include "SlotFile.h"

#include <filesystem>

#include "Kismet/GameplayStatics.h"
#include "UObject/Class.h"
#include "ZAVSaveGame.h"

using nlohmann::json;

/** What else can be in the slot's place: the editor starts, offers every release, and loses nothing. */
class FUpgradeSlot : public FUpgradeEditor
{
protected:
	/** The bytes of a slot that skips release 2.1. */
	static TArray<uint8> MakePayload()
	{
		auto* const Game = NewObject<UZAVSaveGame>();
		Game->bSkipVersion = true;
		Game->OfferedVersion = TEXT("Release_2.1.zip");
		TArray<uint8> Payload;
		EXPECT_TRUE(UGameplayStatics::SaveGameToMemory(Game, Payload));
		return Payload;
	}

	void WriteSlot(const std::string& Bytes) const
	{
		std::filesystem::create_directories(Folder.File("SaveGames"));
		Folder.Write("SaveGames/ZAVQuillon.sav", Bytes);
	}

	/** Starts an editor in which the release is announced, and must be offered. @return what it writes to the end. */
	std::string RestartAndAnnounce()
	{
		::testing::internal::CaptureStderr();
		RestartEditor();
		AnnounceRelease("2.1");
		EXPECT_EQ(GetVersions(), FLog{"2.1"});
		Press(0, "Remind me later");
		EXPECT_EQ(Ask("outside")["messages"], json::array());
		return ::testing::internal::GetCapturedStderr();
	}

	/** Expects that the bytes are kept aside for this reason, and that the slot is good afterwards. */
	void ExpectKeptAside(const std::string& Bytes, const std::string& Reason)
	{
		WriteSlot(Bytes);
		const std::string Aside = Folder.File("SaveGames/ZAVQuillon.damaged-1.sav");
		const std::string Lines = RestartAndAnnounce();
		EXPECT_NE(Lines.find(GetSlotFile() + ": " + Reason + "; kept as " + Aside + '\n'), std::string::npos) << Lines;
		EXPECT_TRUE(FTemporaryFolder::ReadFile(Aside) == Bytes);
		EXPECT_EQ(ReadSlot(), "keep ");
		std::filesystem::remove(Aside);
	}
};

TEST_F(FUpgradeSlot, IsReadWhenItIsGood)
{
	WriteSlot(FSlotFile::Pack(MakePayload()));
	RestartEditor();
	AnnounceRelease("2.1");
	EXPECT_EQ(CountNotifications(), 0U);
}

TEST_F(FUpgradeSlot, IsKeptWhenItIsOfANewerVersion)
{
	std::string Bytes = FSlotFile::Pack(MakePayload());
	constexpr size_t VersionPlace = 16;
	Bytes[VersionPlace] = 2;
	ExpectKeptAside(Bytes, "a save game of a newer version of this program");
}

TEST_F(FUpgradeSlot, IsKeptWhenItsValuesCanNotBeRead)
{
	const TArray<uint8> Good = MakePayload();
	TArray<uint8> Longer = Good;
	Longer.Add(0);
	TArray<uint8> Shorter = Good;
	Shorter.SetNum(Good.Num() - 4);
	for (const TArray<uint8>& Payload : {Longer, Shorter})
	{
		ExpectKeptAside(FSlotFile::Pack(Payload), "a save game with values that can't be read");
	}
}

TEST_F(FUpgradeSlot, StaysAFolderThatIsInItsPlace)
{
	std::filesystem::create_directories(GetSlotFile());
	Folder.Write("SaveGames/ZAVQuillon.sav/diary", "Dear diary");
	EXPECT_EQ(RestartAndAnnounce(), GetSlotFile() + ": Is a directory\n");
	EXPECT_EQ(FTemporaryFolder::ReadFile(GetSlotFile() + "/diary"), "Dear diary");
	EXPECT_EQ(CountSaves(), 0);
}

TEST_F(FUpgradeSlot, StaysMissingWhenSaveGamesIsAFile)
{
	Folder.Write("SaveGames", "Dear diary");
	EXPECT_EQ(RestartAndAnnounce(), GetSlotFile() + ": Not a directory\n");
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("SaveGames")), "Dear diary");
	EXPECT_EQ(Folder.List(), FLog{"SaveGames"});
}
