// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <vector>

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

namespace
{
	std::vector<int32> KeysOf(const TMap<int32, FString>& Map)
	{
		std::vector<int32> Keys;
		for (const auto& Pair : Map)
		{
			Keys.push_back(Pair.Key);
		}
		return Keys;
	}
}

TEST(TMap, AddReplacesTheValueInItsPlace)
{
	TMap<int32, FString> Map;
	Map.Add(3, TEXT("c"));
	Map.Add(1, TEXT("a"));
	Map.Add(3, TEXT("C"));
	EXPECT_EQ(Map.Num(), 2);
	EXPECT_TRUE(Map.Find(3)->Equals(TEXT("C")));
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{3, 1}));
}

TEST(TMap, FindsNothingForAnUnknownKey)
{
	TMap<int32, FString> Map;
	EXPECT_EQ(Map.Find(1), nullptr);
	EXPECT_TRUE(Map.FindRef(1).IsEmpty());
	EXPECT_FALSE(Map.Contains(1));
	EXPECT_EQ(Map.Num(), 0) << "looking adds nothing";
	EXPECT_EXIT(Map[1], ::testing::ExitedWithCode(3), "Assertion failed");
}

TEST(TMap, RemoveTellsWhetherTheKeyWasThere)
{
	TMap<int32, FString> Map;
	Map.Add(1, TEXT("a"));
	EXPECT_EQ(Map.Remove(1), 1);
	EXPECT_EQ(Map.Remove(1), 0);
	EXPECT_EQ(Map.Find(1), nullptr);
}

TEST(TMap, CopyIsIndependent)
{
	TMap<int32, FString> Map;
	Map.Add(1, TEXT("a"));
	TMap<int32, FString> Copy = Map;
	Copy.Add(1, TEXT("b"));
	Copy.Remove(1);
	ASSERT_NE(Map.Find(1), nullptr);
	EXPECT_TRUE(Map.Find(1)->Equals(TEXT("a")));
}
