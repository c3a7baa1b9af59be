// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

class FNotificationRequestsTest : public FEditorStateFixture
{};

TEST_F(FNotificationRequestsTest, SaysThatThereAreNoNotifications)
{
	const std::string Error = "this build has no notifications";
	EXPECT_EQ(GetRefusal({{"do", "announce"}, {"version", "1"}, {"address", "https://a.example"}}), Error);
	EXPECT_EQ(GetRefusal({{"do", "notifications"}}), Error);
	EXPECT_EQ(GetRefusal({{"do", "press"}, {"notification", 0}, {"button", "Close"}}), Error);
}
