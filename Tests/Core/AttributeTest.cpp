// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Misc/Attribute.h"
#include "Misc/Optional.h"

namespace
{
	class FSource : public TSharedFromThis<FSource>
	{
	public:
		int32 GetNumber() const { return Number; }
		int32 Number = 1;
	};
}

TEST(TAttribute, IsUnsetWhenDefaultMade)
{
	const TAttribute<int32> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 0);
	EXPECT_EQ(Attribute.Get(9), 9);
}

TEST(TAttribute, HoldsAValue)
{
	const TAttribute<int32> Attribute(4);
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(9), 4);
}

TEST(TAttribute, AsksItsGetterEveryTime)
{
	int32 NumAsked = 0;
	const TAttribute<int32> Attribute =
		TAttribute<int32>::Create(TAttribute<int32>::FGetter::CreateLambda([&NumAsked]() { return ++NumAsked; }));
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_TRUE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 1);
	EXPECT_EQ(Attribute.Get(), 2);
}

TEST(TAttribute, KeepsTheLastAnswerOfASourceThatIsGone)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Attribute(Source.ToSharedRef(), &FSource::GetNumber);
	Source->Number = 5;
	EXPECT_EQ(Attribute.Get(), 5);
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 5);
}

TEST(TOptional, ReadingAnUnsetOneIsFatal)
{
	const TOptional<int32> Unset;
	EXPECT_FALSE(Unset.IsSet());
	EXPECT_EQ(Unset.Get(7), 7);
	EXPECT_EXIT(Unset.GetValue(), ::testing::ExitedWithCode(3), "Assertion failed: bIsSet");
}

TEST(TOptional, CopiesAndResets)
{
	TOptional<TSharedRef<int32>> Optional = TOptional<TSharedRef<int32>>(MakeShared<int32>(3));
	const TOptional<TSharedRef<int32>> Copy = Optional;
	EXPECT_EQ(Copy.GetValue().GetSharedReferenceCount(), 2);
	Optional.Reset();
	EXPECT_FALSE(Optional.IsSet());
	EXPECT_EQ(Copy.GetValue().GetSharedReferenceCount(), 1);
	EXPECT_EQ(*Copy.GetValue(), 3);
}
