// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Utf8.h"

#include "Delegates/Delegate.h"

namespace
{
	DECLARE_DELEGATE_RetVal_OneParam(int32, FGetNumber, int32);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnNumber, int32);

	class FListener : public TSharedFromThis<FListener>
	{
	public:
		void Take(int32 Number) { Numbers.push_back(Number); }
		void TakeWithPayload(int32 Number, FString Payload)
		{
			Numbers.push_back(Number);
			Payloads.push_back(Utf8(Payload));
		}
		int32 Twice(int32 Number) { return 2 * Number; }
		int32 Thrice(int32 Number) const { return 3 * Number; }

		std::vector<int32> Numbers;
		std::vector<std::string> Payloads;
	};

	int32 AddTo(int32 Number, int32 Payload)
	{
		return Number + Payload;
	}
}

TEST(TDelegate, IsUnboundUntilBound)
{
	FGetNumber Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(FSimpleDelegate().ExecuteIfBound());
	EXPECT_EXIT(Delegate.Execute(1), ::testing::ExitedWithCode(3), "Assertion failed: IsBound\\(\\)");
	Delegate = FGetNumber::CreateLambda([](int32 Number) { return Number; });
	EXPECT_TRUE(Delegate.IsBound());
	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TDelegate, CallsMethodsFunctionsAndLambdas)
{
	FListener Listener;
	EXPECT_EQ(FGetNumber::CreateRaw(&Listener, &FListener::Twice).Execute(4), 8);
	EXPECT_EQ(FGetNumber::CreateRaw(&Listener, &FListener::Thrice).Execute(4), 12);
	EXPECT_EQ(FGetNumber::CreateStatic(&AddTo, 5).Execute(4), 9);
	EXPECT_EQ(FGetNumber::CreateLambda([](int32 Number) { return -Number; }).Execute(4), -4);
}

TEST(TDelegate, PayloadIsACopyOfBindingTime)
{
	FListener Listener;
	FString Payload(TEXT("then"));
	const TDelegate<void(int32)> Delegate =
		TDelegate<void(int32)>::CreateRaw(&Listener, &FListener::TakeWithPayload, Payload);
	Payload = TEXT("now");
	EXPECT_TRUE(Delegate.ExecuteIfBound(1));
	EXPECT_EQ(Listener.Payloads, std::vector<std::string>{"then"});
}

TEST(TDelegate, SharedBindingEndsWithItsObject)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	const FGetNumber Delegate = FGetNumber::CreateSP(Listener.ToSharedRef(), &FListener::Twice);
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(Listener.IsUnique()) << "a binding keeps nothing alive";
	Listener.Reset();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TDelegate, MayUnbindItselfWhileItRuns)
{
	FSimpleDelegate Delegate;
	bool bRan = false;
	const std::string Captured = "a text that is too long for a string's own small buffer";
	Delegate = FSimpleDelegate::CreateLambda(
		[&Delegate, &bRan, Captured]()
		{
			Delegate.Unbind();
			bRan = Captured.size() > 10;
		});
	EXPECT_TRUE(Delegate.ExecuteIfBound());
	EXPECT_TRUE(bRan);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TMulticastDelegate, BroadcastsFromTheLastAddedToTheFirst)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	Delegate.AddLambda([&Order]() { Order += 'a'; });
	Delegate.AddLambda([&Order]() { Order += 'b'; });
	Delegate.AddLambda([&Order]() { Order += 'c'; });
	Delegate.Broadcast();
	EXPECT_EQ(Order, "cba");
}

TEST(TMulticastDelegate, RemovesByHandle)
{
	FOnNumber Delegate;
	FListener Listener;
	const FDelegateHandle First = Delegate.AddRaw(&Listener, &FListener::Take);
	const FDelegateHandle Second = Delegate.AddRaw(&Listener, &FListener::Take);
	EXPECT_TRUE(First != Second);
	EXPECT_TRUE(Delegate.Remove(First));
	EXPECT_FALSE(Delegate.Remove(First));
	EXPECT_FALSE(Delegate.Remove(FDelegateHandle()));
	Delegate.Broadcast(7);
	EXPECT_EQ(Listener.Numbers, std::vector<int32>{7});
	EXPECT_TRUE(Delegate.Remove(Second));
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TMulticastDelegate, RemovesAllOfOneObject)
{
	FOnNumber Delegate;
	FListener Listener;
	FListener Other;
	Delegate.AddRaw(&Listener, &FListener::Take);
	Delegate.AddRaw(&Other, &FListener::Take);
	Delegate.AddRaw(&Listener, &FListener::TakeWithPayload, FString());
	EXPECT_TRUE(Delegate.IsBoundToObject(&Listener));
	EXPECT_EQ(Delegate.RemoveAll(&Listener), 2);
	EXPECT_FALSE(Delegate.IsBoundToObject(&Listener));
	Delegate.Broadcast(1);
	EXPECT_TRUE(Listener.Numbers.empty());
	EXPECT_EQ(Other.Numbers.size(), 1u);
}

TEST(TMulticastDelegate, BindingRemovedDuringABroadcastIsNotCalled)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	const FDelegateHandle First = Delegate.AddLambda([&Order]() { Order += 'a'; });
	Delegate.AddLambda([&Order]() { Order += 'b'; });
	Delegate.AddLambda(
		[&Order, &Delegate, First]()
		{
			Order += 'c';
			Delegate.Remove(First);
		});
	Delegate.Broadcast();
	EXPECT_EQ(Order, "cb");
	Delegate.Broadcast();
	EXPECT_EQ(Order, "cbcb");
}

TEST(TMulticastDelegate, BindingMayRemoveItselfDuringABroadcast)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	FDelegateHandle Self;
	Delegate.AddLambda([&Order]() { Order += 'a'; });
	Self = Delegate.AddLambda(
		[&Order, &Delegate, &Self]()
		{
			Delegate.Remove(Self);
			Order += 'b';
		});
	Delegate.AddLambda([&Order]() { Order += 'c'; });
	Delegate.Broadcast();
	Delegate.Broadcast();
	EXPECT_EQ(Order, "cbaca");
}

TEST(TMulticastDelegate, BindingAddedDuringABroadcastIsCalledInTheNext)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	bool bAdded = false;
	Delegate.AddLambda(
		[&]()
		{
			Order += 'a';
			if (!bAdded)
			{
				bAdded = true;
				Delegate.AddLambda([&Order]() { Order += 'n'; });
			}
		});
	Delegate.Broadcast();
	EXPECT_EQ(Order, "a");
	Delegate.Broadcast();
	EXPECT_EQ(Order, "ana");
}

TEST(TMulticastDelegate, NestedBroadcastLeavesTheOuterOneIntact)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	int32 Depth = 0;
	Delegate.AddLambda([&Order]() { Order += 'a'; });
	Delegate.AddLambda(
		[&]()
		{
			Order += 'b';
			if (++Depth == 1)
			{
				Delegate.Broadcast();
			}
		});
	Delegate.Broadcast();
	EXPECT_EQ(Order, "bbaa");
}

TEST(TMulticastDelegate, ClearDuringABroadcastEndsIt)
{
	FSimpleMulticastDelegate Delegate;
	std::string Order;
	Delegate.AddLambda([&Order]() { Order += 'a'; });
	Delegate.AddLambda(
		[&]()
		{
			Order += 'b';
			Delegate.Clear();
		});
	Delegate.Broadcast();
	EXPECT_EQ(Order, "b");
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(TMulticastDelegate, SkipsBindingsWhoseObjectIsGone)
{
	FOnNumber Delegate;
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	FListener Other;
	Delegate.AddRaw(&Other, &FListener::Take);
	Delegate.AddSP(Listener.ToSharedRef(), &FListener::Take);
	Listener.Reset();
	Delegate.Broadcast(3);
	EXPECT_EQ(Other.Numbers, std::vector<int32>{3});
}

TEST(TMulticastDelegate, CountsTheBindingsThatWouldBeCalled)
{
	TMulticastDelegate<void(int32)> Delegate;
	EXPECT_EQ(Delegate.GetBindingCount(), 0);
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	FListener Other;
	const FDelegateHandle Handle = Delegate.AddRaw(&Other, &FListener::Take);
	Delegate.AddSP(Listener.ToSharedRef(), &FListener::Take);
	EXPECT_EQ(Delegate.GetBindingCount(), 2);
	Listener.Reset();
	EXPECT_EQ(Delegate.GetBindingCount(), 1);
	Delegate.Remove(Handle);
	EXPECT_EQ(Delegate.GetBindingCount(), 0);
}

TEST(FDelegateHandle, IsInvalidUntilABindingGaveIt)
{
	FDelegateHandle Handle;
	EXPECT_FALSE(Handle.IsValid());
	FSimpleMulticastDelegate Delegate;
	Handle = Delegate.AddLambda([]() {});
	EXPECT_TRUE(Handle.IsValid());
	Handle.Reset();
	EXPECT_FALSE(Handle.IsValid());
	EXPECT_TRUE(Delegate.IsBound()) << "forgetting the handle leaves the binding";
}
