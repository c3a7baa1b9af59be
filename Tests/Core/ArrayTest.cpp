// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

#include "Containers/Array.h"

namespace
{
	TArray<int32> ToArray(const std::vector<int>& Values)
	{
		return TArray<int32>(Values.data(), static_cast<int32>(Values.size()));
	}
}

TEST(TArray, IndexOutOfRangeIsFatal)
{
	TArray<int32> Numbers = {1, 2};
	EXPECT_EXIT(Numbers[2] = 0, ::testing::ExitedWithCode(3),
		"Assertion failed: .* \\[File:.*Array.h\\] \\[Line: [0-9]+\\] \nArray index out of bounds: 2 from an array of size 2");
	EXPECT_EXIT(Numbers[-1] = 0, ::testing::ExitedWithCode(3), "out of bounds: -1");
	EXPECT_EXIT(TArray<int32>().Last() = 0, ::testing::ExitedWithCode(3), "out of bounds");
	EXPECT_EXIT(Numbers.RemoveAt(1, 2), ::testing::ExitedWithCode(3), "Assertion failed");
}

TEST(TArray, AddReturnsTheIndex)
{
	TArray<int32> Numbers;
	EXPECT_EQ(Numbers.Add(5), 0);
	EXPECT_EQ(Numbers.Emplace(6), 1);
	EXPECT_EQ(Numbers.AddUnique(5), 0);
	EXPECT_EQ(Numbers.Num(), 2);
}

TEST(TArray, AddsItsOwnElement)
{
	TArray<int32> Numbers = {7};
	for (int32 Count = 0; Count < 100; ++Count)
	{
		Numbers.Add(Numbers[0]);
	}
	EXPECT_EQ(Numbers.Last(), 7);
}

TEST(TArray, RemoveTakesEveryEqualElementEvenItsOwn)
{
	TArray<int32> Numbers = {1, 2, 1, 3, 1};
	EXPECT_EQ(Numbers.Remove(Numbers[0]), 3);
	EXPECT_EQ(Numbers, (TArray<int32>{2, 3}));
}

TEST(TArray, FindsByPredicate)
{
	TArray<int32> Numbers = {1, 4, 6};
	const auto IsEven = [](int32 Number) { return Number % 2 == 0; };
	EXPECT_EQ(Numbers.IndexOfByPredicate(IsEven), 1);
	EXPECT_EQ(Numbers.FindByPredicate(IsEven), &Numbers[1]);
	EXPECT_TRUE(Numbers.ContainsByPredicate(IsEven));
	const auto IsBig = [](int32 Number) { return Number > 9; };
	EXPECT_EQ(Numbers.IndexOfByPredicate(IsBig), INDEX_NONE);
	EXPECT_EQ(Numbers.FindByPredicate(IsBig), nullptr);
	EXPECT_FALSE(Numbers.ContainsByPredicate(IsBig));
}

RC_GTEST_PROP(TArrayProperty, RemoveAllKeepsTheOrderOfTheOthers, (const std::vector<int>& Values))
{
	TArray<int32> Numbers = ToArray(Values);
	const int32 NumRemoved = Numbers.RemoveAll([](int32 Number) { return Number % 2 == 0; });
	std::vector<int> Expected;
	std::copy_if(Values.begin(), Values.end(), std::back_inserter(Expected), [](int Value) { return Value % 2 != 0; });
	RC_ASSERT(Numbers == ToArray(Expected));
	RC_ASSERT(NumRemoved == static_cast<int32>(Values.size() - Expected.size()));
}

RC_GTEST_PROP(TArrayProperty, StableSortKeepsEqualElementsInOrder, (const std::vector<int>& Values))
{
	TArray<int32> Numbers = ToArray(Values);
	const auto ByLastDigit = [](int32 Left, int32 Right) { return Left % 10 < Right % 10; };
	Numbers.StableSort(ByLastDigit);
	std::vector<int> Expected = Values;
	std::stable_sort(Expected.begin(), Expected.end(), ByLastDigit);
	RC_ASSERT(Numbers == ToArray(Expected));
}
