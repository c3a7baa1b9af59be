// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "ZAVSpoutNames.h"

TEST(ZAVSpoutNames, AreNoneWithoutActiveSenders)
{
	ZAVSpoutNames::SetActiveSenderNames({});
	EXPECT_EQ(ZAVSpoutNames::GetActiveSenderNames().Num(), 0);
}

TEST(ZAVSpoutNames, KeepTheirOrderAndSpelling)
{
	ZAVSpoutNames::SetActiveSenderNames({TEXT("cam"), TEXT("Cam"), TEXT("A")});
	const TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	ASSERT_EQ(Names.Num(), 3);
	EXPECT_TRUE(Names[0].Equals(TEXT("cam")));
	EXPECT_TRUE(Names[1].Equals(TEXT("Cam")));
	EXPECT_TRUE(Names[2].Equals(TEXT("A")));
}

TEST(ZAVSpoutNames, AreQueriedAnewByEachCall)
{
	ZAVSpoutNames::SetActiveSenderNames({TEXT("A")});
	const TArray<FString> Earlier = ZAVSpoutNames::GetActiveSenderNames();
	ZAVSpoutNames::SetActiveSenderNames({});
	EXPECT_EQ(Earlier.Num(), 1);
	EXPECT_EQ(ZAVSpoutNames::GetActiveSenderNames().Num(), 0);
}
