// Copyright Corvane. MIT License.
#pragma once

#include <vector>

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformMisc.h"
#include "Standalone/EnsureReports.h"

class UObject;

/**
 * Keeps what the editor and the plugin hand to the outside, from this object's making to its end. It stands between:
 * message boxes are answered at once, with the answer that starts nothing, and no address leaves the process.
 */
class FOutsideRecorder
{
public:
	struct FMessage
	{
		EAppMsgType::Type Kind;
		FString Text;
		/** Empty for none. */
		FString Title;
	};

	FOutsideRecorder();
	FOutsideRecorder(const FOutsideRecorder&) = delete;
	FOutsideRecorder& operator=(const FOutsideRecorder&) = delete;
	~FOutsideRecorder();

	const std::vector<FString>& GetAddresses() const { return Addresses; }
	const std::vector<FMessage>& GetMessages() const { return Messages; }
	const std::vector<FEnsureReport>& GetEnsures() const { return Ensures; }
	int32 GetRedraws() const { return Redraws; }
	int32 GetContentSyncs() const { return ContentSyncs; }
	int32 GetLevelsDirtied() const { return LevelsDirtied; }
	int32 GetSaves() const { return Saves; }

private:
	EAppReturnType::Type OnMessage(EAppMsgType::Type Kind, const FText& Text, const FText& Title);
	bool OnAddress(const TCHAR* Address);
	void OnEnsure(const FEnsureReport& Report) { Ensures.push_back(Report); }
	void OnRedraw(bool) { ++Redraws; }
	void OnContentSync(const TArray<UObject*>&, bool) { ++ContentSyncs; }
	void OnLevelDirtied() { ++LevelsDirtied; }
	void OnSaved() { ++Saves; }

	std::vector<FString> Addresses;
	std::vector<FMessage> Messages;
	std::vector<FEnsureReport> Ensures;
	int32 Redraws = 0;
	int32 ContentSyncs = 0;
	int32 LevelsDirtied = 0;
	int32 Saves = 0;
};
