// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "Standalone/BindingCounts.h"

namespace
{
	struct FCountedListener
	{
		void Hear(bool) {}
		void HearOther(bool) {}
		void HearNumber(int32) {}
	};

	int32 CountListeners()
	{
		const int32 Count = FBindingCounts::Count("FCountedListener::*)(bool)");
		return Count;
	}
}

TEST(FBindingCounts, CountsTheBindingsOfAMethodsTypeUntilTheyAreRemoved)
{
	FCountedListener Listener;
	TMulticastDelegate<void(bool)> Event;
	TMulticastDelegate<void(int32)> Other;
	EXPECT_EQ(CountListeners(), 0);
	const FDelegateHandle Handle = Event.AddRaw(&Listener, &FCountedListener::Hear);
	Event.AddRaw(&Listener, &FCountedListener::HearOther);
	Other.AddRaw(&Listener, &FCountedListener::HearNumber);
	EXPECT_EQ(CountListeners(), 2);
	Event.Broadcast(true);
	EXPECT_EQ(CountListeners(), 2);
	Event.Remove(Handle);
	EXPECT_EQ(CountListeners(), 1);
	Event.RemoveAll(&Listener);
	EXPECT_EQ(CountListeners(), 0);
	EXPECT_EQ(FBindingCounts::Count("FCountedListener::*)(int"), 1);
}

TEST(FBindingCounts, CountsACopyOfABindingOnce)
{
	FCountedListener Listener;
	TDelegate<void(bool)> First = TDelegate<void(bool)>::CreateRaw(&Listener, &FCountedListener::Hear);
	TDelegate<void(bool)> Second = First;
	EXPECT_EQ(CountListeners(), 1);
	First.Unbind();
	EXPECT_EQ(CountListeners(), 1);
	Second.Unbind();
	EXPECT_EQ(CountListeners(), 0);
}
