// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

class FDetailsRequestsTest : public FEditorStateFixture
{};

TEST_F(FDetailsRequestsTest, SaysThatThereIsNoDetailsPanel)
{
	const std::string Error = "this build has no details panel";
	EXPECT_EQ(GetRefusal({{"do", "details"}}), Error);
	EXPECT_EQ(GetRefusal({{"do", "set"}, {"row", 0}, {"value", true}}), Error);
	EXPECT_EQ(GetRefusal({{"do", "pick"}, {"row", "Name"}, {"option", 1}}), Error);
	EXPECT_EQ(GetRefusal({{"do", "tick"}, {"row", "Name"}, {"state", "checked"}}), Error);
}

TEST_F(FDetailsRequestsTest, SaysThatThereIsNoUndoHistory)
{
	Place("ZAVCineCamCapture");
	EXPECT_EQ(GetRefusal({{"do", "undo"}}), "this build has no undo history");
	EXPECT_EQ(GetRefusal({{"do", "redo"}}), "this build has no undo history");
}
