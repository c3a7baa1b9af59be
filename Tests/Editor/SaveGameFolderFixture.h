// Copyright Corvane. MIT License.
#pragma once

#include "SaveGameFolder.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/** A folder for save games that does not exist yet, in an empty one. */
class FSaveGameFolderFixture : public ::testing::Test
{
protected:
	/** What a saved object of the class looks like to a platform. */
	static std::string MakePayload(const std::string& ClassName, const std::string& Rest);

	/** An object of the plugin's class, as a later version of it may save it: with a member of these bytes as well. */
	static std::string MakeGame(const std::string& Value);

	/** Errors are what was written to standard error. */
	bool Save(const std::string& Slot, const std::string& Payload);
	/** @return what is in the slot, or "(none)". */
	std::string Load(const std::string& Slot);
	bool Exists(const std::string& Slot);

	/** A file in SaveGames, which need not exist. */
	std::string File(const std::string& Name) const { return Folder.File("saved/SaveGames/" + Name); }
	/** Puts a file there; it is made first where needed. */
	void Write(const std::string& Name, const std::string& Bytes) const;
	/** The names of all files in SaveGames, sorted. */
	std::vector<std::string> List() const;

	/** Expects that the slot is what it was and is kept aside, for this reason, when a game is saved in its place. */
	void ExpectReplacedWithACopy(const std::string& Reason);

	/** Expects that the file is no slot that can be read, for this reason, and is kept when the slot is saved. */
	void ExpectKeptAside(const std::string& Slot, const std::string& Bytes, const std::string& Reason);

	const FTemporaryFolder Folder;
	FSaveGameFolder System{Folder.File("saved")};
	/** What the last Save or Load wrote to standard error. */
	std::string Errors;
};
