// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <vector>

#include "TestTypes.h"
#include "UObject/UnrealType.h"

namespace
{
	FArrayProperty* FindArray(const TCHAR* Name)
	{
		return CastField<FArrayProperty>(UTestEverything::StaticClass()->FindPropertyByName(Name));
	}

	/** One random step on an array of structures and on a plain vector of their numbers. */
	void Step(FScriptArrayHelper& Helper, std::vector<int32>& Model)
	{
		const int Num = static_cast<int>(Model.size());
		switch (*rc::gen::inRange(0, 4))
		{
			case 0:
				RC_ASSERT(Helper.AddValue() == Num);
				Model.push_back(7);
				break;
			case 1:
			{
				const int Count = *rc::gen::inRange(0, 4);
				Helper.EmptyAndAddValues(Count);
				Model.assign(static_cast<size_t>(Count), 7);
				break;
			}
			case 2:
				if (*rc::gen::inRange(0, 4) == 0)
				{
					Helper.EmptyValues();
					Model.clear();
				}
				break;
			default:
				if (Num > 0)
				{
					const int Index = *rc::gen::inRange(0, Num);
					const int Value = *rc::gen::arbitrary<int>();
					reinterpret_cast<FTestPoint*>(Helper.GetRawPtr(Index))->X = Value;
					Model[static_cast<size_t>(Index)] = Value;
				}
		}
	}
}

RC_GTEST_PROP(FScriptArrayHelper, ChangesAnArrayAsTheStandardVectorDoes, ())
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	FScriptArrayHelper Helper(FindArray(TEXT("Points")), &Object->Points);
	std::vector<int32> Model;
	const int NumSteps = *rc::gen::inRange(0, 30);
	for (int Index = 0; Index < NumSteps; ++Index)
	{
		Step(Helper, Model);
		RC_ASSERT(Helper.Num() == static_cast<int32>(Model.size()));
		RC_ASSERT(Object->Points.Num() == Helper.Num());
		for (int32 Element = 0; Element < Helper.Num(); ++Element)
		{
			RC_ASSERT(Object->Points[Element].X == Model[static_cast<size_t>(Element)]);
			RC_ASSERT(Helper.GetRawPtr(Element) == reinterpret_cast<uint8*>(&Object->Points[Element]));
		}
	}
}

TEST(FScriptArrayHelper, AppendsDefaultConstructedElements)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	FScriptArrayHelper Helper(FindArray(TEXT("Points")), &Object->Points);
	EXPECT_EQ(Helper.AddValue(), 0);
	EXPECT_EQ(Object->Points[0].X, 7);
	EXPECT_EQ(Object->Points[0].Label, FString(TEXT("origin")));
	FScriptArrayHelper Nodes(FindArray(TEXT("Nodes")), &Object->Nodes);
	Nodes.EmptyAndAddValues(2);
	EXPECT_EQ(Object->Nodes[1], nullptr);
}

TEST(FScriptArrayHelper, EmptiesTheArray)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	Object->Strings = {TEXT("a"), TEXT("b")};
	FScriptArrayHelper Helper(FindArray(TEXT("Strings")), &Object->Strings);
	EXPECT_TRUE(Helper.IsValidIndex(1));
	EXPECT_FALSE(Helper.IsValidIndex(2));
	EXPECT_FALSE(Helper.IsValidIndex(-1));
	Helper.EmptyValues();
	EXPECT_EQ(Object->Strings.Num(), 0);
	EXPECT_EQ(Helper.GetRawPtr(), nullptr);
}

TEST(FScriptArrayHelperDeathTest, DiesOfAnIndexOutOfRange)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	Object->Numbers = {1};
	FScriptArrayHelper Helper(FindArray(TEXT("Numbers")), &Object->Numbers);
	EXPECT_EXIT(Helper.GetRawPtr(1), ::testing::ExitedWithCode(3), "IsValidIndex");
}
