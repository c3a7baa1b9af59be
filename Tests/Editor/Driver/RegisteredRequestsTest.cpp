// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include <algorithm>

#include "AuthDelegates.h"

class FRegisteredRequestsTest : public FEditorStateFixture
{
protected:
	FAnswer GetRegistered() { return Ask({{"do", "registered"}}); }
};

TEST_F(FRegisteredRequestsTest, ShowsWhatThePluginRegistered)
{
	const FAnswer Registered = GetRegistered();
	EXPECT_EQ(Registered["styles"], FAnswer({"QuillonEditorStyle"}));
	EXPECT_EQ(Registered["tabs"], FAnswer({"CineStreamWizard"}));
	EXPECT_EQ(Registered["commands"].size(), 1u);
	const std::vector<std::string> Commands = Registered["commands"]["QuillonEditor"];
	EXPECT_FALSE(Commands.empty());
	EXPECT_TRUE(std::is_sorted(Commands.begin(), Commands.end()));
	EXPECT_EQ(Registered["placement"], FAnswer({"AllClasses", "Basic", "Corvane"}));
	EXPECT_EQ(Registered["menuOwners"], 1);
	EXPECT_EQ(Registered["startupCallbacks"], 0);
}

TEST_F(FRegisteredRequestsTest, ShowsNothingButTheLayoutsOfAModuleThatIsUnloaded)
{
	Ask({{"do", "module"}, {"name", "QuillonEditor"}, {"action", "unload"}});
	EXPECT_EQ(GetRegistered().dump(),
		"{\"do\":\"registered\",\"ok\":true,\"styles\":[],\"tabs\":[],\"commands\":{},"
		"\"layouts\":{\"properties\":[\"ZAVSpoutReceiverInterface\"],\"classes\":[\"ZAVCaptureComponent\"]},\"placement\":[\"AllClasses\",\"Basic\"],\"menuOwners\":0,"
		"\"startupCallbacks\":0,\"upgradeHandlers\":0,\"lostStateHandlers\":0}");
}

TEST_F(FRegisteredRequestsTest, DoesNotLoadThePanelToListIt)
{
	Ask({{"do", "module"}, {"name", "PlacementMode"}, {"action", "unload"}});
	EXPECT_EQ(GetRegistered()["placement"], FAnswer::array());
	Ask({{"do", "module"}, {"name", "PlacementMode"}, {"action", "load"}});
}

TEST_F(FRegisteredRequestsTest, CountsUpgradeHandlers)
{
	const int32 Before = GetRegistered()["upgradeHandlers"];
	const FDelegateHandle Handle = AuthDelegates::OnUpgradeAvailable.AddLambda([](FString, FString) {});
	EXPECT_EQ(GetRegistered()["upgradeHandlers"], Before + 1);
	AuthDelegates::OnUpgradeAvailable.Remove(Handle);
	EXPECT_EQ(GetRegistered()["upgradeHandlers"], Before);
}

TEST_F(FRegisteredRequestsTest, CountsTheReceiversWhoseSenderIsWatched)
{
	Place("ZAVSpoutReceiverManager");
	EXPECT_EQ(GetRegistered()["lostStateHandlers"], 0);
	Ask({{"do", "details"}});
	EXPECT_EQ(GetRegistered()["lostStateHandlers"], 1);
	Ask({{"do", "select"}, {"actors", nlohmann::json::array()}});
	EXPECT_EQ(GetRegistered()["lostStateHandlers"], 0);
}
