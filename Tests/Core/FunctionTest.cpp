// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Templates/Function.h"
#include "Templates/UnrealTemplate.h"

TEST(TFunction, IsFalseUntilGivenACallable)
{
	TFunction<int32(int32)> Function;
	EXPECT_FALSE(Function);
	TFunction<int32(int32)> Copy = Function;
	EXPECT_FALSE(Copy) << "a copy of none is none";
	Function = [](int32 Number) { return Number + 1; };
	EXPECT_TRUE(Function);
	EXPECT_EQ(Function(1), 2);
	Function = nullptr;
	EXPECT_FALSE(Function);
}

TEST(TFunctionRef, CallsWhatItRefersTo)
{
	int32 NumCalls = 0;
	const auto Count = [&NumCalls](int32 Number) { return NumCalls += Number; };
	const TFunctionRef<int32(int32)> Reference = Count;
	EXPECT_EQ(Reference(2), 2);
	EXPECT_EQ(Reference(3), 5);
}

TEST(TGuardValue, PutsTheOldValueBack)
{
	int32 Value = 1;
	{
		const TGuardValue<int32> Guard(Value, 2);
		EXPECT_EQ(Value, 2);
	}
	EXPECT_EQ(Value, 1);
}
