// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestWidgets.h"

namespace
{
	DECLARE_DELEGATE_OneParam(FOnPoked, int32)

		/** A leaf with an attribute and an event to bind. */
		class SPokable : public SLeafWidget
	{
	public:
		SLATE_BEGIN_ARGS(SPokable) : _Limit(7) {}
		SLATE_ATTRIBUTE(int32, Limit)
		SLATE_EVENT(FOnPoked, OnPoked)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			Limit = InArgs._Limit;
			OnPoked = InArgs._OnPoked;
			bWasExposedBeforeConstruct = Exposed != nullptr && Exposed->IsValid();
		}

		static TSharedPtr<SPokable>* Exposed;
		bool bWasExposedBeforeConstruct = false;
		TAttribute<int32> Limit;
		FOnPoked OnPoked;

	protected:
		virtual FVector2D ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const override { return FVector2D(); }
	};

	TSharedPtr<SPokable>* SPokable::Exposed = nullptr;

	/** What the widgets are bound to. */
	class FOwner : public TSharedFromThis<FOwner>
	{
	public:
		int32 GetLimit() const { return 20; }
		int32 GetLimitPlus(int32 More) const { return 20 + More; }
		void OnPoked(int32 Strength) { Last = Strength; }
		void OnPokedWith(int32 Strength, int32 Payload) { Last = Strength * 100 + Payload; }

		int32 Last = 0;
	};

	int32 LimitOf(const TSharedRef<SPokable>& Widget)
	{
		return Widget->Limit.Get();
	}

	void Poke(const TSharedRef<SPokable>& Widget, int32 Strength)
	{
		Widget->OnPoked.ExecuteIfBound(Strength);
	}

	int32 GetStaticLimit()
	{
		return 30;
	}

	int32 GLastPoke = 0;

	void OnStaticallyPoked(int32 Strength)
	{
		GLastPoke = Strength;
	}
}

TEST(SNewMacro, KeepsTheDefaultsOfArgumentsThatAreNotGiven)
{
	EXPECT_EQ(LimitOf(SNew(SPokable)), 7);
}

TEST(SNewMacro, TakesAPlainValueForAnAttribute)
{
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit(8)), 8);
}

TEST(SNewMacro, BindsAnAttributeToAMethodOfASharedObject)
{
	const TSharedRef<FOwner> Owner = MakeShared<FOwner>();
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit(Owner, &FOwner::GetLimit)), 20);
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit(&Owner.Get(), &FOwner::GetLimitPlus, 3)), 23);
}

TEST(SNewMacro, DoesNotKeepTheObjectOfABindingAlive)
{
	TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
	const TSharedRef<SPokable> Widget =
		SNew(SPokable).Limit(Owner.Get(), &FOwner::GetLimit).OnPoked(Owner.Get(), &FOwner::OnPoked);
	const TWeakPtr<FOwner> Watch = Owner;
	Owner.Reset();
	EXPECT_FALSE(Watch.IsValid());
	EXPECT_FALSE(Widget->OnPoked.IsBound());
}

TEST(SNewMacro, BindsAnAttributeToAnythingElseThatCanBeCalled)
{
	const FOwner Owner;
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit_Raw(&Owner, &FOwner::GetLimit)), 20);
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit_Static(&GetStaticLimit)), 30);
	EXPECT_EQ(LimitOf(SNew(SPokable).Limit_Lambda([]() { return 40; })), 40);
}

TEST(SNewMacro, BindsAnEventToAMethodOfASharedObject)
{
	const TSharedRef<FOwner> Owner = MakeShared<FOwner>();
	Poke(SNew(SPokable).OnPoked(&Owner.Get(), &FOwner::OnPoked), 5);
	EXPECT_EQ(Owner->Last, 5);
	Poke(SNew(SPokable).OnPoked(Owner, &FOwner::OnPokedWith, 9), 6);
	EXPECT_EQ(Owner->Last, 609);
}

TEST(SNewMacro, BindsAnEventToAnythingElseThatCanBeCalled)
{
	FOwner Owner;
	Poke(SNew(SPokable).OnPoked_Raw(&Owner, &FOwner::OnPoked), 1);
	EXPECT_EQ(Owner.Last, 1);
	Poke(SNew(SPokable).OnPoked_Static(&OnStaticallyPoked), 2);
	EXPECT_EQ(GLastPoke, 2);
	int32 Heard = 0;
	Poke(SNew(SPokable).OnPoked_Lambda([&Heard](int32 Strength) { Heard = Strength; }), 3);
	EXPECT_EQ(Heard, 3);
}

TEST(SNewMacro, HandsTheCommonArgumentsToEveryWidget)
{
	const TSharedRef<SPokable> Widget = SNew(SPokable).Visibility(EVisibility::Hidden).IsEnabled(false).Limit(1);
	EXPECT_TRUE(Widget->GetVisibility() == EVisibility::Hidden);
	EXPECT_FALSE(Widget->IsEnabled());
}

TEST(SAssignNewMacro, AssignsTheWidgetBeforeItIsConstructed)
{
	TSharedPtr<SPokable> Widget;
	SPokable::Exposed = &Widget;
	SAssignNew(Widget, SPokable).Limit(3);
	SPokable::Exposed = nullptr;
	ASSERT_TRUE(Widget.IsValid());
	EXPECT_TRUE(Widget->bWasExposedBeforeConstruct);
	EXPECT_EQ(Widget->Limit.Get(), 3);
}
