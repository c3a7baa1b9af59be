// Copyright Corvane. MIT License.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "DrivenEditor.h"
#include "TemporaryFolder.h"

#include "SaveGameSystem.h"

/** Where save games go that a test looks into: one slot in memory, which may fail. */
class FTestSaveGames : public ISaveGameSystem
{
public:
	virtual bool DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex) override;
	virtual bool SaveGame(bool, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) override;
	virtual bool LoadGame(bool, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) override;

	/** What was asked: "exists ZAVQuillon 0". */
	std::vector<std::string> Calls;
	bool bSaves = true;
	/** What is in the slot; nothing if empty. */
	TArray<uint8> Bytes;
	/** The slot is there only for those who load it unasked. */
	bool bHidden = false;
	TFunction<void()> OnExists = []() {};
	TFunction<void()> OnSave = []() {};
};

/** An editor that saves games to a folder of its own, where releases are announced and notifications answered. */
class FUpgradeEditor : public ::testing::Test
{
protected:
	FUpgradeEditor();
	~FUpgradeEditor() override;

	/** Ends the editor and starts another one on the same folder, or on none. */
	void RestartEditor(bool bSavesGames = true);
	void RestartModule() { Ask({{"do", "restart"}, {"what", "module"}}); }

	nlohmann::json Ask(const nlohmann::json& Request) { return FDrivenEditor::Ask(*Session, Request); }
	nlohmann::json Ask(const char* Do) { return Ask(nlohmann::json{{"do", Do}}); }

	void Announce(const std::string& Version, const std::string& Address);
	void AnnounceRelease(const std::string& Version)
	{
		Announce(Version, "https://corvane.example/download/Release_" + Version + ".zip");
	}
	/** Those on screen. */
	nlohmann::json GetNotifications() { return Ask("notifications")["notifications"]; }
	size_t CountNotifications() { return GetNotifications().size(); }
	/** The versions that are offered on screen, oldest first. */
	std::vector<std::string> GetVersions();
	void Press(size_t Notification, const char* Button);
	nlohmann::json GetAddresses() { return Ask("outside")["addresses"]; }
	/** How often the slot was written since the editor started. */
	int CountSaves() { return Ask("outside")["counts"]["saves"]; }

	/** What is in the slot: "skip Release_2.1.zip", "keep Release_2.1.zip", or "(none)". */
	static std::string ReadSlot();
	std::string GetSlotFile() const { return Folder.File("SaveGames/ZAVQuillon.sav"); }

	const FTemporaryFolder Folder;
	std::unique_ptr<FDriverSession> Session;
	typedef std::vector<std::string> FLog;
};
