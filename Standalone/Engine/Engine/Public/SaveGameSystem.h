// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"

/** Where a platform keeps save games: slots with a name, one set for each user where users are told apart. */
class ISaveGameSystem
{
public:
	virtual ~ISaveGameSystem() = default;

	/** Whether there is something in the slot, sound or not. */
	virtual bool DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex) = 0;

	/** Replaces what is in the slot. @return false if it could not be written. */
	virtual bool SaveGame(
		bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) = 0;

	/** @return false, with empty Data, if there is nothing in the slot that can be read. */
	virtual bool LoadGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) = 0;
};
