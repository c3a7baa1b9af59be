// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestTypes.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace
{
	/** Puts a default value back at the end of a test. */
	template <typename T>
	class TDefaultValueScope
	{
	public:
		explicit TDefaultValueScope(T& InValue) : Value(InValue), Old(InValue) {}
		~TDefaultValueScope() { Value = Old; }

	private:
		T& Value;
		T Old;
	};
}

TEST(NewObject, StartsWithTheConstructorsValuesAndZeroes)
{
	const UTestEverything* const Object = NewObject<UTestEverything>();
	EXPECT_TRUE(Object->bSwitch);
	EXPECT_EQ(Object->Count, 3);
	EXPECT_EQ(Object->Node, nullptr);
	EXPECT_EQ(Object->GetOuter(), GetTransientPackage());
}

TEST(NewObject, TakesOverTheValuesOfTheClassDefaultObject)
{
	UTestEverything* const Default = GetMutableDefault<UTestEverything>();
	const TDefaultValueScope<int32> Count(Default->Count);
	const TDefaultValueScope<TArray<FTestPoint>> Points(Default->Points);
	Default->Count = 99;
	Default->Points.Add(FTestPoint());
	const UTestEverything* const Object = NewObject<UTestEverything>();
	EXPECT_EQ(Object->Count, 99);
	EXPECT_EQ(Object->Points.Num(), 1);
}

TEST(NewObject, TakesOverTheValuesOfATemplate)
{
	UTestEverything* const Template = NewObject<UTestEverything>();
	Template->Text = TEXT("from the template");
	Template->Node = NewObject<UTestNode>();
	Template->Point.Hidden = 5;
	const UTestEverything* const Object =
		NewObject<UTestEverything>(GetTransientPackage(), FName(), RF_NoFlags, Template);
	EXPECT_STREQ(TCHAR_TO_UTF8(*Object->Text), "from the template");
	EXPECT_EQ(Object->Node, Template->Node);
	EXPECT_EQ(Object->Point.Hidden, 5);
}

TEST(NewObject, GivesEachInstanceItsOwnParts)
{
	const UTestOwner* const Default = GetDefault<UTestOwner>();
	const UTestOwner* const Object = NewObject<UTestOwner>();
	ASSERT_NE(Object->Part, nullptr);
	EXPECT_NE(Object->Part, Default->Part);
	EXPECT_EQ(Object->Part->GetOuter(), Object);
	EXPECT_EQ(Object->SamePart, Object->Part);
	EXPECT_EQ(Object->AllParts, (TArray<UTestPart*>{Object->Part, Object->GetSecret()}));
	EXPECT_EQ(Object->Part->Inner->GetOuter(), Object->Part);
	EXPECT_EQ(Object->Part->Inner->Whole, Object->Part);
	EXPECT_STREQ(TCHAR_TO_UTF8(*Object->Part->GetName()), "Part");
}

TEST(NewObject, GivesPartsTheValuesOfTheDefaultObjectsParts)
{
	const TDefaultValueScope<int32> Size(GetDefault<UTestOwner>()->Part->Size);
	const TDefaultValueScope<int32> Depth(GetDefault<UTestOwner>()->Part->Inner->Depth);
	GetDefault<UTestOwner>()->Part->Size = 33;
	GetDefault<UTestOwner>()->Part->Inner->Depth = 44;
	const UTestOwner* const Object = NewObject<UTestOwner>();
	EXPECT_EQ(Object->Part->Size, 33);
	EXPECT_EQ(Object->Part->SizeWhenReady, 33);
	EXPECT_EQ(Object->Part->Inner->Depth, 44);
	EXPECT_EQ(Object->GetSecret()->Size, 1);
}

TEST(NewObject, TakesOverTheValuesOfATemplatesParts)
{
	UTestOwner* const Template = NewObject<UTestOwner>();
	Template->Part->Size = 77;
	const UTestOwner* const Object = NewObject<UTestOwner>(GetTransientPackage(), FName(), RF_NoFlags, Template);
	EXPECT_EQ(Object->Part->Size, 77);
	EXPECT_NE(Object->Part, Template->Part);
}

TEST(NewObject, MakesTheOwnedPartsOfATemplateThatNoConstructorMakes)
{
	UTestOwner* const Template = NewObject<UTestOwner>();
	Template->Spare = NewObject<UTestPart>(Template, TEXT("Spare"));
	Template->Spare->Size = 5;
	const UTestOwner* const Object = NewObject<UTestOwner>(GetTransientPackage(), FName(), RF_NoFlags, Template);
	ASSERT_NE(Object->Spare, nullptr);
	EXPECT_EQ(Object->Spare->GetOuter(), Object);
	EXPECT_EQ(Object->Spare->Size, 5);
}

TEST(NewObject, KeepsATemplatesReferencesToWhatItDoesNotOwn)
{
	UTestOwner* const Template = NewObject<UTestOwner>();
	Template->Shared = NewObject<UTestNode>(Template, TEXT("NoPart"));
	const UTestOwner* const Object = NewObject<UTestOwner>(GetTransientPackage(), FName(), RF_NoFlags, Template);
	EXPECT_EQ(Object->Shared, Template->Shared);
}

TEST(NewObject, LetsADerivedClassChangeTheBasesParts)
{
	const UTestDerivedOwner* const Object = NewObject<UTestDerivedOwner>();
	EXPECT_EQ(Object->Part->Size, 20);
	EXPECT_EQ(Object->Extra, 11);
	EXPECT_EQ(GetDefault<UTestDerivedOwner>()->Part->Size, 20);
	EXPECT_EQ(GetDefault<UTestOwner>()->Part->Size, 10);
}

TEST(NewObject, GivesPartsTheFlagsOfTheirOwnerAndTheirOwn)
{
	const UTestOwner* const Object = NewObject<UTestOwner>(GetTransientPackage(), FName(), RF_Transactional);
	EXPECT_EQ(Object->Part->GetFlags(), RF_Transactional | RF_DefaultSubObject);
	EXPECT_EQ(Object->GetSecret()->GetFlags(), RF_Transactional | RF_DefaultSubObject | RF_Transient);
	EXPECT_TRUE(GetDefault<UTestOwner>()->Part->HasAnyFlags(RF_ArchetypeObject));
}

TEST(GetArchetype, IsTheDefaultObjectOrTheTemplatesPart)
{
	const UTestDerivedOwner* const Object = NewObject<UTestDerivedOwner>();
	EXPECT_EQ(Object->GetArchetype(), GetDefault<UTestDerivedOwner>());
	EXPECT_EQ(Object->Part->GetArchetype(), GetDefault<UTestDerivedOwner>()->Part);
	EXPECT_EQ(Object->Part->Inner->GetArchetype(), GetDefault<UTestDerivedOwner>()->Part->Inner);
	EXPECT_EQ(GetDefault<UTestDerivedOwner>()->GetArchetype(), GetDefault<UTestOwner>());
	EXPECT_EQ(GetDefault<UObject>()->GetArchetype(), nullptr);
}

TEST(GetArchetype, OfAnAddedPartIsItsClassDefaultObject)
{
	UTestOwner* const Object = NewObject<UTestOwner>();
	EXPECT_EQ(NewObject<UTestPart>(Object, TEXT("Added"))->GetArchetype(), GetDefault<UTestPart>());
}

TEST(GetArchetype, IsNeverAPartOfAnotherClass)
{
	NewObject<UTestNode>(GetMutableDefault<UTestOwner>(), TEXT("Namesake"));
	UTestOwner* const Object = NewObject<UTestOwner>();
	EXPECT_EQ(NewObject<UTestPart>(Object, TEXT("Namesake"))->GetArchetype(), GetDefault<UTestPart>());
}

TEST(NewObjectDeathTest, DiesOfAnAbstractClass)
{
	EXPECT_EXIT(NewObject<UTestAbstract>(), ::testing::ExitedWithCode(3), "TestAbstract is abstract");
}

TEST(NewObjectDeathTest, DiesOfATakenName)
{
	NewObject<UTestNode>(GetTransientPackage(), TEXT("Taken"));
	EXPECT_EXIT(NewObject<UTestNode>(GetTransientPackage(), TEXT("taken")), ::testing::ExitedWithCode(3),
		"already an object taken in /Engine/Transient");
}

TEST(NewObjectDeathTest, DiesWithoutAnOuter)
{
	EXPECT_EXIT(NewObject<UTestNode>(nullptr, TEXT("Lost")), ::testing::ExitedWithCode(3), "TestNode needs an outer");
}

TEST(NewObjectDeathTest, DiesOfANamelessObjectWithinAConstructor)
{
	NewObject<UTestHasty>();
	UTestHasty::bMisbehave = true;
	EXPECT_EXIT(NewObject<UTestHasty>(), ::testing::ExitedWithCode(3), "use CreateDefaultSubobject");
	UTestHasty::bMisbehave = false;
}

TEST(NewObjectDeathTest, DiesOfAPartMadeOutsideOfTheConstructor)
{
	UTestNode* const Object = NewObject<UTestNode>();
	EXPECT_EXIT(Object->CreateDefaultSubobject<UTestPart>(TEXT("Late")), ::testing::ExitedWithCode(3),
		"No object initializer found during construction");
}
