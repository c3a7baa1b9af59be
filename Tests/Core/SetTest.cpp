// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Containers/Set.h"
#include "UObject/NameTypes.h"

TEST(TSet, ContainsWhatWasAdded)
{
	TSet<FName> Set;
	Set.Add("One");
	EXPECT_TRUE(Set.Contains("One"));
	EXPECT_FALSE(Set.Contains("Two"));
}

TEST(TSet, TakesItsElementsFromAList)
{
	const TSet<FName> Set{"One", "Two"};
	EXPECT_TRUE(Set.Contains("Two"));
}

TEST(TSet, ComparesWithTheElementsOwnEquality)
{
	EXPECT_TRUE(TSet<FName>{"One"}.Contains("ONE"));
}
