// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include "Kismet/GameplayStatics.h"
#include "PlatformFeatures.h"
#include "Templates/Casts.h"
#include "ZAVSaveGame.h"

using nlohmann::json;

namespace
{
	std::string Describe(const char* What, const TCHAR* Name, int32 UserIndex)
	{
		return std::string(What) + ' ' + TCHAR_TO_UTF8(Name) + ' ' + std::to_string(UserIndex);
	}
}

bool FTestSaveGames::DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex)
{
	Calls.push_back(Describe("exists", Name, UserIndex));
	OnExists();
	return Bytes.Num() > 0 && !bHidden;
}

bool FTestSaveGames::SaveGame(bool, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data)
{
	Calls.push_back(Describe("save", Name, UserIndex));
	OnSave();
	Bytes = bSaves ? Data : Bytes;
	return bSaves;
}

bool FTestSaveGames::LoadGame(bool, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data)
{
	Calls.push_back(Describe("load", Name, UserIndex));
	Data = Bytes;
	return Bytes.Num() > 0;
}

FUpgradeEditor::FUpgradeEditor()
{
	RestartEditor();
}

FUpgradeEditor::~FUpgradeEditor()
{
	// A test may have put save games of its own there.
	IPlatformFeaturesModule::Get().SetSaveGameSystem(nullptr);
}

void FUpgradeEditor::RestartEditor(bool bSavesGames)
{
	Session.reset();
	Session = std::make_unique<FDriverSession>();
	FStandaloneEditorOptions Options;
	Options.SavedDir = bSavesGames ? Folder.File("") : std::string();
	std::string Error;
	EXPECT_TRUE(Session->Start(Options, Error)) << Error;
}

void FUpgradeEditor::Announce(const std::string& Version, const std::string& Address)
{
	Ask({{"do", "announce"}, {"version", Version}, {"address", Address}});
}

std::vector<std::string> FUpgradeEditor::GetVersions()
{
	const std::string Before = "Corvane Quillon Upgrade\nVersion ";
	const std::string After = " Available\n";
	std::vector<std::string> Versions;
	for (const json& Notification : GetNotifications())
	{
		const std::string Text = Notification["text"];
		EXPECT_EQ(Text.compare(0, Before.size(), Before), 0) << Text;
		EXPECT_EQ(Text.substr(Text.size() - After.size()), After);
		Versions.push_back(Text.substr(Before.size(), Text.size() - Before.size() - After.size()));
	}
	return Versions;
}

void FUpgradeEditor::Press(size_t Notification, const char* Button)
{
	Ask({{"do", "press"}, {"notification", Notification}, {"button", Button}});
}

std::string FUpgradeEditor::ReadSlot()
{
	const auto* Saved = Cast<UZAVSaveGame>(UGameplayStatics::LoadGameFromSlot(TEXT("ZAVQuillon"), 0));
	return Saved ? (Saved->bSkipVersion ? "skip " : "keep ") + std::string(TCHAR_TO_UTF8(*Saved->OfferedVersion))
				 : "(none)";
}
