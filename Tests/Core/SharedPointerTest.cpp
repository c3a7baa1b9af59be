// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

namespace
{
	class FWidget : public TSharedFromThis<FWidget>
	{
	public:
		virtual ~FWidget() = default;
		int32 Value = 0;
	};

	class FButton : public FWidget
	{
	public:
		TSharedRef<FButton> Self() { return SharedThis(this); }
	};
}

TEST(TSharedPtr, IsNullUntilGivenAnObject)
{
	TSharedPtr<FWidget> Pointer;
	EXPECT_FALSE(Pointer.IsValid());
	EXPECT_EQ(Pointer.Get(), nullptr);
	EXPECT_TRUE(Pointer == nullptr);
	Pointer = MakeShared<FWidget>();
	EXPECT_TRUE(Pointer.IsValid());
	Pointer = nullptr;
	EXPECT_FALSE(Pointer.IsValid());
}

TEST(TSharedPtr, FollowingNullIsFatal)
{
	TSharedPtr<FWidget> Pointer;
	EXPECT_EXIT(Pointer->Value = 1, ::testing::ExitedWithCode(3), "Assertion failed: IsValid\\(\\)");
	EXPECT_EXIT((*Pointer).Value = 1, ::testing::ExitedWithCode(3), "Assertion failed: IsValid\\(\\)");
	EXPECT_EXIT(Pointer.ToSharedRef(), ::testing::ExitedWithCode(3), "Assertion failed: IsValid\\(\\)");
}

TEST(TSharedPtr, IsUniqueWhileNobodyElseHoldsTheObject)
{
	TSharedPtr<FWidget> Pointer = MakeShareable(new FWidget);
	EXPECT_TRUE(Pointer.IsUnique());
	{
		const TSharedRef<FWidget> Other = Pointer.ToSharedRef();
		EXPECT_FALSE(Pointer.IsUnique());
		EXPECT_EQ(Pointer.GetSharedReferenceCount(), 2);
	}
	const TWeakPtr<FWidget> Weak = Pointer;
	EXPECT_TRUE(Pointer.IsUnique()) << "weak pointers do not count";
}

TEST(TSharedPtr, EqualityIsThatOfTheObject)
{
	const TSharedRef<FButton> Button = MakeShared<FButton>();
	const TSharedPtr<FWidget> Same = Button;
	EXPECT_TRUE(Same == TSharedPtr<FWidget>(Button));
	EXPECT_TRUE(Same != TSharedPtr<FWidget>(MakeShared<FButton>()));
	EXPECT_TRUE(StaticCastSharedPtr<FButton>(Same) == Button);
}

TEST(TSharedRef, StaysValidWhenMovedFrom)
{
	TSharedRef<FWidget> First = MakeShared<FWidget>();
	const TSharedRef<FWidget> Second = std::move(First);
	EXPECT_EQ(&First.Get(), &Second.Get());
}

TEST(TWeakPtr, ExpiresWithTheLastStrongPointer)
{
	TSharedPtr<FWidget> Pointer = MakeShared<FWidget>();
	const TWeakPtr<FWidget> Weak = Pointer;
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak.Pin() == Pointer);
	Pointer.Reset();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
}

TEST(TSharedFromThis, HandsOutTheSameOwnership)
{
	const TSharedRef<FButton> Button = MakeShared<FButton>();
	EXPECT_TRUE(Button->Self() == Button);
	const TSharedRef<FWidget> AsWidget = Button->AsShared();
	EXPECT_EQ(Button.GetSharedReferenceCount(), 2);
}

TEST(TUniquePtr, DeletesWhatItOwns)
{
	TSharedRef<int32> Counter = MakeShared<int32>(0);
	struct FHolder
	{
		TSharedRef<int32> Held;
	};
	TUniquePtr<FHolder> Owner(new FHolder{Counter});
	TUniquePtr<FHolder> Next = std::move(Owner);
	EXPECT_FALSE(Owner.IsValid());
	EXPECT_TRUE(Next.IsValid());
	Next.Reset();
	EXPECT_TRUE(Counter.IsUnique());
}
