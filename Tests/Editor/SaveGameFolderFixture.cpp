// Copyright Corvane. MIT License.
#include "SaveGameFolderFixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "ZAVSaveGame.h"

namespace
{
	std::string ToBytes(const std::string& Text)
	{
		std::string Bytes = {static_cast<char>(Text.size()), 0, 0, 0};
		for (const char Unit : Text)
		{
			Bytes += {Unit, 0};
		}
		return Bytes;
	}

	TArray<uint8> ToArray(const std::string& Bytes)
	{
		return TArray<uint8>(reinterpret_cast<const uint8*>(Bytes.data()), static_cast<int32>(Bytes.size()));
	}
}

std::string FSaveGameFolderFixture::MakePayload(const std::string& ClassName, const std::string& Rest)
{
	return ToBytes(ClassName) + Rest;
}

std::string FSaveGameFolderFixture::MakeGame(const std::string& Value)
{
	UZAVSaveGame::StaticClass();
	std::string Length(4, '\0');
	for (size_t Byte = 0; Byte < Length.size(); ++Byte)
	{
		Length[Byte] = static_cast<char>(Value.size() >> (Byte * 8));
	}
	return MakePayload(
		"/Script/Quillon.ZAVSaveGame", ToBytes("Later") + ToBytes("bytes") + Length + Value + ToBytes(""));
}

bool FSaveGameFolderFixture::Save(const std::string& Slot, const std::string& Payload)
{
	::testing::internal::CaptureStderr();
	const bool bSaved = System.SaveGame(false, UTF8_TO_TCHAR(Slot.c_str()), 0, ToArray(Payload));
	Errors = ::testing::internal::GetCapturedStderr();
	return bSaved;
}

std::string FSaveGameFolderFixture::Load(const std::string& Slot)
{
	TArray<uint8> Payload = {1, 2, 3};
	::testing::internal::CaptureStderr();
	const bool bLoaded = System.LoadGame(false, UTF8_TO_TCHAR(Slot.c_str()), 0, Payload);
	Errors = ::testing::internal::GetCapturedStderr();
	EXPECT_TRUE(bLoaded || Payload.Num() == 0);
	return bLoaded ? std::string(Payload.begin(), Payload.end()) : "(none)";
}

bool FSaveGameFolderFixture::Exists(const std::string& Slot)
{
	return System.DoesSaveGameExist(UTF8_TO_TCHAR(Slot.c_str()), 0);
}

void FSaveGameFolderFixture::Write(const std::string& Name, const std::string& Bytes) const
{
	std::filesystem::create_directories(File(""));
	ASSERT_EQ(Folder.Write("saved/SaveGames/" + Name, Bytes), File(Name));
}

std::vector<std::string> FSaveGameFolderFixture::List() const
{
	std::vector<std::string> Names;
	for (const auto& Entry : std::filesystem::directory_iterator(File("")))
	{
		Names.push_back(Entry.path().filename().string());
	}
	std::sort(Names.begin(), Names.end());
	return Names;
}

void FSaveGameFolderFixture::ExpectReplacedWithACopy(const std::string& Reason)
{
	const std::string Aside = File("Slot.damaged-1.sav");
	const std::string Bytes = FTemporaryFolder::ReadFile(File("Slot.sav"));
	EXPECT_TRUE(Save("Slot", MakeGame("new")));
	EXPECT_EQ(Errors, File("Slot.sav: ") + Reason + "; kept as " + Aside + '\n');
	EXPECT_EQ(FTemporaryFolder::ReadFile(Aside), Bytes);
	EXPECT_EQ(Load("Slot"), MakeGame("new"));
	std::filesystem::remove(Aside);
	std::filesystem::remove(File("Slot.sav"));
}

void FSaveGameFolderFixture::ExpectKeptAside(
	const std::string& Slot, const std::string& Bytes, const std::string& Reason)
{
	const std::string Path = File(Slot + ".sav");
	const std::string Aside = File(Slot + ".damaged-1.sav");
	Write(Slot + ".sav", Bytes);
	EXPECT_TRUE(Exists(Slot));
	EXPECT_EQ(Load(Slot), "(none)");
	EXPECT_EQ(Errors, Path + ": " + Reason + '\n');
	EXPECT_EQ(FTemporaryFolder::ReadFile(Path), Bytes);
	EXPECT_TRUE(Save(Slot, "new"));
	EXPECT_EQ(Errors, Path + ": " + Reason + "; kept as " + Aside + '\n');
	EXPECT_EQ(FTemporaryFolder::ReadFile(Aside), Bytes);
	EXPECT_EQ(Load(Slot), "new");
	EXPECT_EQ(Errors, "");
}
