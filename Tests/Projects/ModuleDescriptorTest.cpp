// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "ModuleDescriptor.h"

TEST(ELoadingPhase, IsFoundByItsNameInAnyLetterCase)
{
	EXPECT_EQ(ELoadingPhase::FromString(TEXT("EarliestPossible")), ELoadingPhase::EarliestPossible);
	EXPECT_EQ(ELoadingPhase::FromString(TEXT("postengineinit")), ELoadingPhase::PostEngineInit);
	EXPECT_EQ(ELoadingPhase::FromString(TEXT("None")), ELoadingPhase::None);
}

TEST(ELoadingPhase, IsMaxForAnUnknownName)
{
	EXPECT_EQ(ELoadingPhase::FromString(TEXT("Later")), ELoadingPhase::Max);
	EXPECT_EQ(ELoadingPhase::FromString(TEXT("")), ELoadingPhase::Max);
}

TEST(EHostType, IsFoundByItsNameInAnyLetterCase)
{
	EXPECT_EQ(EHostType::FromString(TEXT("Runtime")), EHostType::Runtime);
	EXPECT_EQ(EHostType::FromString(TEXT("EDITOR")), EHostType::Editor);
	EXPECT_EQ(EHostType::FromString(TEXT("ClientOnlyNoCommandlet")), EHostType::ClientOnlyNoCommandlet);
}

TEST(EHostType, IsMaxForAnUnknownName)
{
	EXPECT_EQ(EHostType::FromString(TEXT("Game")), EHostType::Max);
}
