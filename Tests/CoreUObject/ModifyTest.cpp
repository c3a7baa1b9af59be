// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Misc/ITransaction.h"
#include "TestTypes.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace
{
	/** Records for the length of a test which objects are saved. */
	class FTestTransaction : public ITransaction
	{
	public:
		FTestTransaction() { GUndo = this; }
		~FTestTransaction() override { GUndo = nullptr; }
		FTestTransaction(const FTestTransaction&) = delete;
		FTestTransaction& operator=(const FTestTransaction&) = delete;

		void SaveObject(UObject* Object) override { Saved.Add(Object); }
		void SaveCreated(UObject*) override { FAIL() << "nothing is made here"; }

		TArray<UObject*> Saved;
	};

	/** An object in a package of its own, without changes, and what is told of it. */
	class FModifyTest : public ::testing::Test
	{
	protected:
		FModifyTest()
			: Object(*NewObject<UTestEverything>(CreatePackage(TEXT("/Game/Modify")), FName(), RF_Transactional))
		{
			Object.GetOutermost()->SetDirtyFlag(false);
			ModifiedHandle =
				FCoreUObjectDelegates::OnObjectModified.AddLambda([this](UObject* Told) { Modified.Add(Told); });
			ChangedHandle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
				[this](UObject* Told, FPropertyChangedEvent& Event)
				{
					Changed.Add(Told);
					Events.push_back(Event);
				});
		}
		~FModifyTest() override
		{
			FCoreUObjectDelegates::OnObjectModified.Remove(ModifiedHandle);
			FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(ChangedHandle);
		}

		bool IsDirty() const { return Object.GetOutermost()->IsDirty(); }

		UTestEverything& Object;
		TArray<UObject*> Modified;
		TArray<UObject*> Changed;
		std::vector<FPropertyChangedEvent> Events;

	private:
		FDelegateHandle ModifiedHandle;
		FDelegateHandle ChangedHandle;
	};
}

TEST_F(FModifyTest, FlagsThePackageAtOnceOutsideOfSteps)
{
	EXPECT_FALSE(Object.Modify());
	EXPECT_TRUE(IsDirty());
	EXPECT_EQ(Modified, (TArray<UObject*>{&Object}));
}

TEST_F(FModifyTest, FlagsNoPackageWhenToldNotTo)
{
	EXPECT_FALSE(Object.Modify(false));
	EXPECT_FALSE(IsDirty());
	EXPECT_EQ(Modified, (TArray<UObject*>{&Object}));
}

TEST_F(FModifyTest, SavesATransactionalObjectIntoTheStepInsteadOfFlaggingIt)
{
	const FTestTransaction Transaction;
	EXPECT_TRUE(Object.Modify());
	EXPECT_EQ(Transaction.Saved, (TArray<UObject*>{&Object}));
	EXPECT_FALSE(IsDirty());
	EXPECT_EQ(Modified, (TArray<UObject*>{&Object}));
}

TEST_F(FModifyTest, SavesNoObjectThatIsNotTransactional)
{
	Object.ClearFlags(RF_Transactional);
	const FTestTransaction Transaction;
	EXPECT_FALSE(Object.Modify(false));
	EXPECT_FALSE(IsDirty());
	EXPECT_FALSE(Object.Modify());
	EXPECT_TRUE(IsDirty());
	EXPECT_EQ(Transaction.Saved.Num(), 0);
}

TEST_F(FModifyTest, IsCalledBeforeAProperty)
{
	const FTestTransaction Transaction;
	Object.PreEditChange(Object.GetClass()->FindPropertyByName(TEXT("Count")));
	EXPECT_EQ(Transaction.Saved, (TArray<UObject*>{&Object}));
	EXPECT_EQ(Changed.Num(), 0);
}

TEST_F(FModifyTest, TellsWhichPropertyHasChangedAndHow)
{
	FProperty* Count = Object.GetClass()->FindPropertyByName(TEXT("Count"));
	FPropertyChangedEvent Event(Count, EPropertyChangeType::ValueSet);
	Object.PostEditChangeProperty(Event);
	EXPECT_EQ(Changed, (TArray<UObject*>{&Object}));
	EXPECT_EQ(Events.at(0).Property, Count);
	EXPECT_EQ(Events.at(0).MemberProperty, Count);
	EXPECT_EQ(Events.at(0).ChangeType, EPropertyChangeType::ValueSet);
	EXPECT_FALSE(IsDirty());
}

TEST_F(FModifyTest, TellsOfUndoWithoutNamingAProperty)
{
	Object.PostEditUndo();
	EXPECT_EQ(Changed, (TArray<UObject*>{&Object}));
	EXPECT_EQ(Events.at(0).Property, nullptr);
	EXPECT_EQ(Events.at(0).ChangeType, EPropertyChangeType::Unspecified);
	EXPECT_EQ(Modified.Num(), 0);
}
