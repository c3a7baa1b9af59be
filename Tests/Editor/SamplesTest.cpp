// Copyright Corvane. MIT License.
// The levels that come with the repository.
#include <gtest/gtest.h>

#include <string>

#include "LevelFile.h"
#include "TemporaryFolder.h"
#include "TestEditor.h"

namespace
{
	class FSamplesTest : public ::testing::TestWithParam<const char*>
	{};
}

TEST_P(FSamplesTest, IsWhatTheEditorSavesItselfAfterOpeningIt)
{
	const std::string Path = std::string(QUILLON_SAMPLES_DIR) + "/" + GetParam() + ".json";
	const FTestEditor Editor;
	std::string Error;
	std::string Text;
	ASSERT_TRUE(FLevelFile::Open(Path, Error)) << Error;
	ASSERT_TRUE(FLevelFile::ToText(Text, Error)) << Error;
	EXPECT_EQ(Text, FTemporaryFolder::ReadFile(Path));
}

INSTANTIATE_TEST_SUITE_P(
	FSamplesTest, FSamplesTest, ::testing::Values("empty", "studio"), [](const auto& Info) { return Info.param; });
