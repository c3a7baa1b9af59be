// Copyright Corvane. MIT License.
#include "UpgradeFixture.h"

#include "AllocationCount.h"
#include "FileAccessRecorder.h"

#include "AuthDelegates.h"

using nlohmann::json;

// What an announcement costs that nobody wants to hear.

namespace
{
	const TCHAR* const Version = TEXT("a version too long to be kept in place");
	const TCHAR* const Address = TEXT("https://corvane.example/download/a release too long to be kept in place.zip");
}

class FSkippedAnnouncement : public FUpgradeEditor
{
protected:
	FSkippedAnnouncement()
	{
		AuthDelegates::OnUpgradeAvailable.Broadcast(Version, Address);
		Press(0, "Skip version");
	}
};

TEST_F(FSkippedAnnouncement, TouchesNoFile)
{
	FFileAccessRecorder::Start();
	AuthDelegates::OnUpgradeAvailable.Broadcast(Version, Address);
	EXPECT_EQ(FFileAccessRecorder::Stop(), std::vector<std::string>());
	FFileAccessRecorder::Start();
	AuthDelegates::OnUpgradeAvailable.Broadcast(Version, TEXT("another"));
	EXPECT_NE(FFileAccessRecorder::Stop(), std::vector<std::string>()) << "the recorder sees the slot";
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FSkippedAnnouncement, TakesNoMemoryButForItsArguments)
{
	const auto CountForBroadcast = []()
	{
		const int64 Before = FAllocationCount::Get();
		AuthDelegates::OnUpgradeAvailable.Broadcast(Version, Address);
		return FAllocationCount::Get() - Before;
	};
	const int64 Skipped = CountForBroadcast();
	Ask({{"do", "module"}, {"name", "QuillonEditor"}, {"action", "unload"}});
	const FDelegateHandle Handle = AuthDelegates::OnUpgradeAvailable.AddLambda([](FString, FString) {});
	EXPECT_EQ(Skipped, CountForBroadcast());
	EXPECT_GT(Skipped, 0) << "allocations are counted";
	AuthDelegates::OnUpgradeAvailable.Remove(Handle);
}
#endif
