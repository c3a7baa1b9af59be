// Copyright Corvane. MIT License.
#include "SaveGameFolder.h"

#include "SaveGameFolderFixture.h"
#include "SlotFile.h"

#include <sys/stat.h>

#include <filesystem>
#include <numeric>

#include "Kismet/GameplayStatics.h"
#include "PlatformFeatures.h"
#include "Templates/Casts.h"
#include "ZAVSaveGame.h"

namespace
{
	const std::string NotASlot = "not a save game";
	const std::string Damaged = "a damaged save game";
	const std::string Newer = "a save game of a newer version of this program";
	const std::string OtherClass = "a save game of another class";
	/** Of a file's version, little-endian. */
	constexpr size_t VersionPlace = 16;
	constexpr size_t HeaderSize = 28;

	std::string CheckErrorOf(const std::string& SavedDir)
	{
		std::string Error;
		EXPECT_FALSE(FSaveGameFolder::Check(SavedDir, Error));
		return Error;
	}

	bool IsAccepted(const std::string& SavedDir)
	{
		std::string Error;
		return FSaveGameFolder::Check(SavedDir, Error) && Error.empty();
	}
}

class FSaveGameFolderTest : public FSaveGameFolderFixture
{
protected:
	/** The file of a slot with this payload. */
	std::string Pack(const std::string& Payload)
	{
		EXPECT_TRUE(Save("Packed", Payload));
		std::string Bytes = FTemporaryFolder::ReadFile(File("Packed.sav"));
		std::filesystem::remove(File("Packed.sav"));
		return Bytes;
	}
};

TEST_F(FSaveGameFolderTest, LoadsWhatWasSaved)
{
	std::string Every(256, '\0');
	std::iota(Every.begin(), Every.end(), '\0');
	for (const std::string& Payload : {std::string("one"), std::string(), Every, std::string(100000, 'x')})
	{
		EXPECT_TRUE(Save("Slot", Payload));
		// They all begin with another class's name, as it were.
		EXPECT_EQ(Load("Slot"), Payload);
		EXPECT_EQ(Errors, "");
	}
}

TEST_F(FSaveGameFolderTest, PutsMarkVersionLengthAndChecksumBeforeThePayload)
{
	// The check value of CRC-32: 0xCBF43926.
	const std::string Numbers("\x01\0\0\0\x09\0\0\0\x26\x39\xF4\xCB", 12);
	EXPECT_EQ(Pack("123456789"), "QuillonSaveGame\n" + Numbers + "123456789");
}

TEST_F(FSaveGameFolderTest, IsMadeByTheFirstSave)
{
	EXPECT_FALSE(Exists("Slot"));
	EXPECT_EQ(Load("Slot"), "(none)");
	EXPECT_EQ(Errors, "");
	EXPECT_TRUE(Folder.List().empty());
	EXPECT_TRUE(Save("Slot", "a"));
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"saved"});
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
	EXPECT_TRUE(Exists("Slot"));
	EXPECT_FALSE(Exists("Other"));
}

TEST_F(FSaveGameFolderTest, IsMadeWithWhatIsMissingAboveIt)
{
	FSaveGameFolder Deep(Folder.File("a/b/c/"));
	EXPECT_TRUE(Deep.SaveGame(false, TEXT("Slot"), 0, {1}));
	EXPECT_TRUE(std::filesystem::exists(Folder.File("a/b/c/SaveGames/Slot.sav")));
}

TEST_F(FSaveGameFolderTest, SharesTheSlotsAmongUsers)
{
	TArray<uint8> Payload;
	EXPECT_TRUE(System.SaveGame(false, TEXT("Slot"), 1, {7}));
	EXPECT_TRUE(System.DoesSaveGameExist(TEXT("Slot"), 2));
	EXPECT_TRUE(System.LoadGame(true, TEXT("Slot"), 3, Payload));
	EXPECT_EQ(Payload, TArray<uint8>{7});
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderTest, ReplacesASlotOfTheSameClassAndLeavesNothingElse)
{
	EXPECT_TRUE(Save("Slot", MakeGame("old")));
	EXPECT_TRUE(Save("Slot", MakeGame("new")));
	EXPECT_EQ(Errors, "");
	EXPECT_EQ(Load("Slot"), MakeGame("new"));
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderTest, ReplacesASlotOfTheSameClassInAnotherLetterCase)
{
	std::string Old = MakeGame("old");
	Old[Old.find('Q')] = 'q';
	EXPECT_TRUE(Save("Slot", Old));
	EXPECT_TRUE(Save("Slot", MakeGame("new")));
	EXPECT_EQ(Errors, "");
	EXPECT_EQ(List(), std::vector<std::string>{"Slot.sav"});
}

TEST_F(FSaveGameFolderTest, KeepsAGameThatCanNotBeReadAsAnObject)
{
	const std::string Good = MakeGame("");
	const std::string NoEnd = Good.substr(0, Good.size() - 4);
	const std::string Flag("\x0C\0\0\0b\0S\0k\0i\0p\0V\0e\0r\0s\0i\0o\0n\0\4\0\0\0b\0o\0o\0l\0\1\0\0\0", 44);
	ASSERT_TRUE(Save("Slot", NoEnd + Flag + std::string("\1\0\0\0\0", 5)));
	EXPECT_TRUE(Save("Slot", Good));
	EXPECT_EQ(Errors, "") << "a member like this can be read";
	for (const std::string& Payload :
		{NoEnd, Good + '\0', NoEnd + Flag + std::string("\2\0\0\0\0", 5), Good.substr(0, Good.size() - 10)})
	{
		std::filesystem::remove(File("Slot.sav"));
		EXPECT_TRUE(Save("Slot", Payload));
		EXPECT_EQ(Load("Slot"), Payload) << "the bytes are those that were saved";
		ExpectReplacedWithACopy("a save game with values that can't be read");
	}
}

TEST_F(FSaveGameFolderTest, RefusesNamesThatAreNoSlots)
{
	for (const std::string& Name : {std::string(), std::string("."), std::string(".."), std::string(".hidden"),
			 std::string("a/b"), std::string("/a"), std::string("../../a"), std::string("a/"), std::string("a\\b"),
			 std::string("..\\a"), std::string("a\nb"), std::string("\x01"), std::string("a\x1F"), std::string("\x7F"),
			 std::string("Slot.damaged-1"), std::string("a.damaged-"), std::string(201, 'a'), std::string(100000, 'a')})
	{
		EXPECT_FALSE(Exists(Name)) << Name;
		EXPECT_EQ(Load(Name), "(none)") << Name;
		EXPECT_EQ(Errors, "") << Name;
		EXPECT_FALSE(Save(Name, "a")) << Name;
		EXPECT_EQ(Errors.rfind(File("") + ": \"", 0), 0U) << Errors;
		EXPECT_EQ(Errors.find('\n'), Errors.size() - 1) << Errors;
	}
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(FSaveGameFolderTest, RefusesANameThatIsNoUnicode)
{
	EXPECT_FALSE(System.SaveGame(false, u"a\xD800", 0, {1}));
	EXPECT_FALSE(System.DoesSaveGameExist(u"a\xD800", 0));
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(FSaveGameFolderTest, SaysWhichNameItRefuses)
{
	EXPECT_FALSE(Save("a/\nb", "a"));
	EXPECT_EQ(Errors, File("") + ": \"a/\\u000Ab\" can't be the name of a save slot\n");
}

TEST_F(FSaveGameFolderTest, TakesEveryOtherName)
{
	for (const std::string& Name : {std::string("a"), std::string(" "), std::string("a b."), std::string("-a"),
			 std::string("%s{0}*?\"'"), std::string("a.sav"), std::string("a..b"), std::string("Слот😀"),
			 std::string("damaged-1"), std::string(200, 'a')})
	{
		EXPECT_TRUE(Save(Name, Name)) << Name;
		EXPECT_TRUE(Exists(Name)) << Name;
		EXPECT_EQ(Load(Name), Name);
		EXPECT_TRUE(std::filesystem::is_regular_file(File(Name + ".sav"))) << Name;
	}
	EXPECT_EQ(List().size(), 10U);
}

TEST_F(FSaveGameFolderTest, KeepsTheLongestSlotAsideToo)
{
	ExpectKeptAside(std::string(200, 'a'), "x", NotASlot);
}

TEST_F(FSaveGameFolderTest, KeepsAFileThatWasCutOffAnywhere)
{
	const std::string Bytes = Pack("payload");
	for (size_t Size = 0; Size < Bytes.size(); ++Size)
	{
		ExpectKeptAside(std::to_string(Size), Bytes.substr(0, Size), Size < VersionPlace ? NotASlot : Damaged);
	}
}

TEST_F(FSaveGameFolderTest, KeepsAFileWithAnyBitFlipped)
{
	const std::string Bytes = Pack("payload");
	for (size_t Bit = 0; Bit < Bytes.size() * 8; ++Bit)
	{
		std::string Flipped = Bytes;
		Flipped[Bit / 8] = static_cast<char>(Flipped[Bit / 8] ^ (1 << (Bit % 8)));
		// The lowest bit of the version makes it version 0, the others a later one.
		const bool bNewer = Bit / 8 >= VersionPlace && Bit / 8 < VersionPlace + 4 && Bit != VersionPlace * 8;
		ExpectKeptAside(std::to_string(Bit), Flipped, Bit / 8 < VersionPlace ? NotASlot : bNewer ? Newer : Damaged);
	}
}

TEST_F(FSaveGameFolderTest, KeepsAFileWithMoreThanItsPayload)
{
	ExpectKeptAside("Slot", Pack("payload") + '\0', Damaged);
}

TEST_F(FSaveGameFolderTest, KeepsAFileOfANewerVersionWhateverElseIsInIt)
{
	const std::string Header = Pack("").substr(0, VersionPlace);
	ExpectKeptAside("Slot", Header + std::string("\x02\0\0\0", 4) + "all is new behind it", Newer);
}

TEST_F(FSaveGameFolderTest, KeepsAFileOfAnotherKind)
{
	ExpectKeptAside("Text", "Dear diary", NotASlot);
	ExpectKeptAside("Empty", "", NotASlot);
	ExpectKeptAside("Zeros", std::string(1000, '\0'), NotASlot);
}

TEST_F(FSaveGameFolderTest, KeepsAFileThatIsTooLarge)
{
	const std::string Bytes(FSlotFile::MaxSize + 1, 'x');
	const std::string Path = File("Slot.sav");
	Write("Slot.sav", Bytes);
	EXPECT_EQ(Load("Slot"), "(none)");
	EXPECT_EQ(Errors, Path + ": larger than 16 MiB\n");
	EXPECT_TRUE(Save("Slot", "new"));
	EXPECT_EQ(Errors, Path + ": could not be read; kept as " + File("Slot.damaged-1.sav") + '\n');
	EXPECT_TRUE(FTemporaryFolder::ReadFile(File("Slot.damaged-1.sav")) == Bytes);
	EXPECT_EQ(Load("Slot"), "new");
}

TEST_F(FSaveGameFolderTest, KeepsAGameOfAnotherClass)
{
	const std::string Old = MakePayload("/Script/A.B", "old");
	for (const std::string& Payload : {MakePayload("/Script/A.C", "old"), MakePayload("/Script/A.Bc", "old"),
			 std::string(), std::string("abc"), std::string("\xFF\xFF\xFF\xFF", 4) + Old.substr(4)})
	{
		std::filesystem::remove_all(Folder.File("saved"));
		EXPECT_TRUE(Save("Slot", Old));
		EXPECT_TRUE(Save("Slot", Payload));
		EXPECT_EQ(Errors, File("Slot.sav") + ": " + OtherClass + "; kept as " + File("Slot.damaged-1.sav") + '\n');
		EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.damaged-1.sav")), Pack(Old));
		EXPECT_EQ(Load("Slot"), Payload);
	}
}

TEST_F(FSaveGameFolderTest, NumbersWhatItKeepsAndReplacesNoneOfIt)
{
	Write("Slot.damaged-1.sav", "first");
	std::filesystem::create_directory(File("Slot.damaged-2.sav"));
	std::filesystem::create_symlink("nowhere", File("Slot.damaged-3.sav"));
	for (const char* Bytes : {"a", "b"})
	{
		Write("Slot.sav", Bytes);
		EXPECT_TRUE(Save("Slot", "new"));
	}
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.damaged-1.sav")), "first");
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.damaged-4.sav")), "a");
	EXPECT_EQ(FTemporaryFolder::ReadFile(File("Slot.damaged-5.sav")), "b");
	EXPECT_EQ(List().size(), 6U);
}

TEST_F(FSaveGameFolderTest, LeavesWhatIsNoFile)
{
	std::filesystem::create_directories(File("Folder.sav"));
	ASSERT_EQ(::mkfifo(File("Pipe.sav").c_str(), 0600), 0);
	for (const auto& [Slot, Reason] : {std::pair("Folder", "Is a directory"), std::pair("Pipe", "not a regular file")})
	{
		const std::string Line = File(Slot) + ".sav: " + Reason + '\n';
		EXPECT_FALSE(Exists(Slot));
		EXPECT_EQ(Load(Slot), "(none)");
		EXPECT_EQ(Errors, Line);
		EXPECT_FALSE(Save(Slot, "a"));
		EXPECT_EQ(Errors, Line);
	}
	EXPECT_EQ(List(), (std::vector<std::string>{"Folder.sav", "Pipe.sav"}));
}

TEST_F(FSaveGameFolderTest, SaysWhyItCanNotBeMade)
{
	Folder.Write("saved", "a file");
	EXPECT_FALSE(Exists("Slot"));
	EXPECT_EQ(Load("Slot"), "(none)");
	EXPECT_EQ(Errors, File("Slot.sav: Not a directory\n"));
	EXPECT_FALSE(Save("Slot", "a"));
	EXPECT_EQ(Errors, File("Slot.sav: Not a directory\n"));
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("saved")), "a file");
	// Nobody can make a folder there.
	FSaveGameFolder Nowhere("/proc/none");
	::testing::internal::CaptureStderr();
	EXPECT_FALSE(Nowhere.SaveGame(false, TEXT("Slot"), 0, {1}));
	EXPECT_EQ(::testing::internal::GetCapturedStderr(), "/proc/none/SaveGames/: No such file or directory\n");
}

TEST_F(FSaveGameFolderTest, SavesNothingThatIsTooLargeToLoad)
{
	const std::string Largest(FSlotFile::MaxSize - HeaderSize, 'x');
	EXPECT_TRUE(Save("Slot", Largest));
	EXPECT_EQ(Load("Slot"), Largest);
	EXPECT_FALSE(Save("Slot", Largest + 'x'));
	EXPECT_EQ(Errors, File("Slot.sav: the save game is larger than 16 MiB\n"));
	EXPECT_EQ(Load("Slot"), Largest);
}

TEST_F(FSaveGameFolderTest, TellsOfEachSlotThatWasWritten)
{
	int32 Count = 0;
	const FDelegateHandle Handle = FSaveGameFolder::OnSaved().AddLambda([&Count] { ++Count; });
	EXPECT_TRUE(Save("Slot", "a"));
	EXPECT_TRUE(Save("Slot", "a"));
	EXPECT_FALSE(Save("..", "a"));
	EXPECT_EQ(Load("Slot"), "a");
	FSaveGameFolder::OnSaved().Remove(Handle);
	EXPECT_EQ(Count, 2);
}

TEST_F(FSaveGameFolderTest, RemembersWhatThePluginSaves)
{
	IPlatformFeaturesModule::Get().SetSaveGameSystem(&System);
	auto* Game = static_cast<UZAVSaveGame*>(UGameplayStatics::CreateSaveGameObject(UZAVSaveGame::StaticClass()));
	Game->OfferedVersion = TEXT("1.1");
	Game->bSkipVersion = true;
	EXPECT_TRUE(UGameplayStatics::SaveGameToSlot(Game, Game->SaveSlotName, Game->UserIndex));
	const auto* Loaded = Cast<UZAVSaveGame>(UGameplayStatics::LoadGameFromSlot(TEXT("ZAVQuillon"), 0));
	IPlatformFeaturesModule::Get().SetSaveGameSystem(nullptr);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_NE(Loaded, Game);
	EXPECT_TRUE(Loaded->OfferedVersion.Equals(TEXT("1.1")));
	EXPECT_TRUE(Loaded->bSkipVersion);
	EXPECT_EQ(List(), std::vector<std::string>{"ZAVQuillon.sav"});
}

TEST_F(FSaveGameFolderTest, AcceptsAFolderThatThereIsOrCanBe)
{
	EXPECT_TRUE(IsAccepted(Folder.File("")));
	EXPECT_TRUE(IsAccepted(Folder.File("none")));
	EXPECT_TRUE(IsAccepted(Folder.File("none/below/none")));
	EXPECT_TRUE(IsAccepted("."));
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(FSaveGameFolderTest, RefusesAFolderThatIsAFile)
{
	const std::string Path = Folder.Write("a", "");
	EXPECT_EQ(CheckErrorOf(Path), Path + ": Not a directory");
	EXPECT_EQ(CheckErrorOf(Path + "/b"), Path + "/b: Not a directory");
	EXPECT_EQ(CheckErrorOf(Path + "/b/c"), Path + "/b/c: Not a directory");
	EXPECT_EQ(CheckErrorOf("/dev/null"), "/dev/null: Not a directory");
}

TEST_F(FSaveGameFolderTest, RefusesALinkThatLeadsToNothing)
{
	const std::string Link = Folder.File("link");
	const std::string Reason = ": a symbolic link that leads to nothing";
	std::filesystem::create_symlink("none", Link);
	EXPECT_EQ(CheckErrorOf(Link), Link + Reason);
	EXPECT_EQ(CheckErrorOf(Link + "/"), Link + Reason);
	EXPECT_EQ(CheckErrorOf(Link + "/below/it"), Link + Reason);
	std::filesystem::create_directory(Folder.File("saved"));
	std::filesystem::create_symlink("none", Folder.File("saved/SaveGames"));
	EXPECT_EQ(CheckErrorOf(Folder.File("saved")), Folder.File("saved/SaveGames") + Reason);
	std::filesystem::create_symlink("loop", Folder.File("loop"));
	EXPECT_EQ(CheckErrorOf(Folder.File("loop")), Folder.File("loop") + ": Too many levels of symbolic links");
}

TEST_F(FSaveGameFolderTest, AcceptsLinksThatLeadToFoldersAndAnyFileInTheirPlace)
{
	std::filesystem::create_directories(Folder.File("a/b"));
	std::filesystem::create_symlink("a", Folder.File("link"));
	std::filesystem::create_symlink("b", Folder.File("a/SaveGames"));
	EXPECT_TRUE(IsAccepted(Folder.File("link")));
	EXPECT_TRUE(IsAccepted(Folder.File("link/none")));
	Folder.Write("a/b/SaveGames", "a file");
	EXPECT_TRUE(IsAccepted(Folder.File("a/b"))) << "the editor starts, and saving tells of it";
}
