// Copyright Corvane. MIT License.
#pragma once

#include <chrono>
#include <string>

#include "CoreMinimal.h"
#include "SaveGameSystem.h"

/**
 * Save slots as files, SaveGames/SLOT.sav in the folder that the user names with --saved. Users share their slots.
 *
 * A slot's file is replaced as a whole, so that a crash at any moment leaves the old or the new one; of two editors
 * that save at once the last one wins. What stands in a slot's place and can't be read as an object, or is one of
 * another class, is never lost: before it is replaced it is kept as SLOT.damaged-N.sav.
 *
 * What fails is told in one line on standard error, as callers of save games seldom look.
 */
class FSaveGameFolder : public ISaveGameSystem
{
public:
	/** The folder and those above it are made by the first save. */
	explicit FSaveGameFolder(const std::string& SavedDir);

	/**
	 * @return false, with one line, for a path that is neither a folder nor free to become one: below a file, or behind
	 * a symbolic link that leads to nothing. That SaveGames in it is a file is told when a game is saved.
	 */
	static bool Check(const std::string& SavedDir, std::string& OutError);

	virtual bool DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex) override;

	/**
	 * @return false as well for a name that can't be a slot's: an empty or over-long one, one that begins with a dot,
	 * holds a slash, a backslash or a control character, reads as one of the files kept aside, or is no Unicode.
	 */
	virtual bool SaveGame(
		bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) override;
	virtual bool LoadGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) override;

	/** A slot was written, whichever folder it is in. */
	static FSimpleMulticastDelegate& OnSaved();

private:
	/** @return false, with one line, for a name that can't be a slot's. */
	bool FindPath(const TCHAR* Name, std::string& OutPath, std::string& OutError) const;
	bool Save(const TCHAR* Name, const TArray<uint8>& Data, std::string& OutError);
	bool Load(const TCHAR* Name, TArray<uint8>& OutData, std::string& OutError) const;

	/** From time to time, before Path is written: what killed processes left there, or where it leads to. */
	void RemoveLeftOver(const std::string& Path);

	std::string Folder;
	std::chrono::steady_clock::time_point NextRemoval;
};
