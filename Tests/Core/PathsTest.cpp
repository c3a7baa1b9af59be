// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <fstream>

#include "Utf8.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace
{
	/** Writes a file that bears the test's name. */
	FString WriteFile(const std::string& Content)
	{
		const std::string Path =
			::testing::TempDir() + ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt";
		std::ofstream(Path, std::ios::binary) << Content;
		return FromUtf8(Path);
	}
}

TEST(FPaths, GivesTheFolderThatAPathIsIn)
{
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("a/b/c.txt"))), "a/b");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("c.txt"))), "");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("a\\b"))), "a");
}

TEST(FPaths, TellsFilesFromFolders)
{
	const FString File = WriteFile("x");
	EXPECT_TRUE(FPaths::FileExists(File));
	EXPECT_FALSE(FPaths::DirectoryExists(File));
	EXPECT_TRUE(FPaths::DirectoryExists(FPaths::GetPath(File)));
	EXPECT_FALSE(FPaths::FileExists(FPaths::GetPath(File)));
	EXPECT_FALSE(FPaths::FileExists(File + TEXT("missing")));
	EXPECT_FALSE(FPaths::DirectoryExists(File + TEXT("missing")));
}

TEST(FFileHelper, ReadsUtf8)
{
	FString Text;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *WriteFile("\xC3\xA4\nb")));
	EXPECT_TRUE(Text.Equals(TEXT("\u00E4\nb")));
}

TEST(FFileHelper, LeavesOutAByteOrderMark)
{
	FString Text;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *WriteFile("\xEF\xBB\xBF{}")));
	EXPECT_EQ(Utf8(Text), "{}");
}

TEST(FFileHelper, FailsForMissingFilesAndFolders)
{
	FString Text(TEXT("before"));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, TEXT("/nowhere/at/all")));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *FromUtf8(::testing::TempDir())));
	EXPECT_EQ(Utf8(Text), "before");
}
