// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "OddTypes.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "TestTypes.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
	std::vector<std::string> GetPropertyNames(const UStruct* Struct)
	{
		std::vector<std::string> Names;
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			Names.push_back(TCHAR_TO_UTF8(*It->GetName()));
		}
		return Names;
	}

	std::string GetMetaData(const UStruct* Struct, FName Property, const TCHAR* Key)
	{
		return TCHAR_TO_UTF8(*Struct->FindPropertyByName(Property)->GetMetaData(Key));
	}
}

TEST(UClass, IsFoundByItsNameWithoutPrefix)
{
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestNode")), UTestNode::StaticClass());
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("ODDACTOR")), AOddActor::StaticClass());
	EXPECT_EQ(FindObject<UScriptStruct>(ANY_PACKAGE, TEXT("TestPoint")), FTestPoint::StaticStruct());
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("UTestNode")), nullptr);
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestPoint")), nullptr);
}

TEST(UClass, LiesInTheScriptPackageOfItsModule)
{
	EXPECT_EQ(UTestNode::StaticClass()->GetOuter(), FindPackage(nullptr, TEXT("/Script/CoreUObjectTests")));
	EXPECT_EQ(UObject::StaticClass()->GetOuter(), FindPackage(nullptr, TEXT("/Script/CoreUObject")));
	EXPECT_EQ(UTestNode::StaticClass()->GetClass(), UClass::StaticClass());
	EXPECT_EQ(UClass::StaticClass()->GetClass(), UClass::StaticClass());
	EXPECT_EQ(FTestPoint::StaticStruct()->GetClass(), UScriptStruct::StaticClass());
}

TEST(UClass, KnowsWhatItDerivesFrom)
{
	EXPECT_EQ(UTestDerivedOwner::StaticClass()->GetSuperClass(), UTestOwner::StaticClass());
	EXPECT_TRUE(UTestDerivedOwner::StaticClass()->IsChildOf(UTestOwner::StaticClass()));
	EXPECT_TRUE(UTestDerivedOwner::StaticClass()->IsChildOf<UTestDerivedOwner>());
	EXPECT_TRUE(UTestDerivedOwner::StaticClass()->IsChildOf<UObject>());
	EXPECT_FALSE(UTestOwner::StaticClass()->IsChildOf<UTestDerivedOwner>());
	EXPECT_FALSE(UTestOwner::StaticClass()->IsChildOf<UTestNode>());
	EXPECT_FALSE(UTestOwner::StaticClass()->IsChildOf(nullptr));
	EXPECT_EQ(FTestLabelledPoint::StaticStruct()->GetSuperStruct(), FTestPoint::StaticStruct());
	EXPECT_EQ(UObject::StaticClass()->GetSuperClass(), nullptr);
}

TEST(UClass, KeepsTheFlagsOfItsDeclaration)
{
	EXPECT_TRUE(UTestAbstract::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(UTestNode::StaticClass()->HasAnyClassFlags(CLASS_Abstract | CLASS_Intrinsic));
	EXPECT_TRUE(UTestNode::StaticClass()->HasAnyClassFlags(CLASS_Native));
	EXPECT_TRUE(UTestPart::StaticClass()->HasAnyClassFlags(CLASS_DefaultToInstanced));
	EXPECT_TRUE(UTestDerivedPart::StaticClass()->HasAnyClassFlags(CLASS_DefaultToInstanced));
}

TEST(UClass, KeepsTheMetadataOfItsDeclaration)
{
	const UClass* const Class = UTestEverything::StaticClass();
	EXPECT_STREQ(TCHAR_TO_UTF8(*Class->GetMetaData(TEXT("DisplayName"))), "Everything");
	EXPECT_STREQ(TCHAR_TO_UTF8(*Class->GetMetaData("shorttooltip")), "All kinds");
	EXPECT_STREQ(TCHAR_TO_UTF8(*Class->GetMetaData(TEXT("ClassGroupNames"))), "Testing");
	EXPECT_TRUE(Class->HasMetaData(TEXT("BlueprintType")));
	EXPECT_FALSE(Class->HasMetaData(TEXT("Unknown")));
	EXPECT_TRUE(Class->GetMetaData(TEXT("Unknown")).IsEmpty());
	EXPECT_STREQ(TCHAR_TO_UTF8(*AOddActor::StaticClass()->GetMetaData(TEXT("HideCategories"))), "Object Two Words");
	EXPECT_STREQ(TCHAR_TO_UTF8(*FTestPoint::StaticStruct()->GetMetaData(TEXT("DisplayName"))), "A point");
}

TEST(UClass, HasOneDefaultObjectNamedAfterIt)
{
	const UTestOwner* const Default = GetDefault<UTestOwner>();
	EXPECT_EQ(UTestOwner::StaticClass()->GetDefaultObject<UTestOwner>(), Default);
	EXPECT_EQ(GetMutableDefault<UTestOwner>(), Default);
	EXPECT_STREQ(TCHAR_TO_UTF8(*Default->GetPathName()), "/Script/CoreUObjectTests.Default__TestOwner");
	EXPECT_TRUE(Default->HasAnyFlags(RF_ClassDefaultObject));
	EXPECT_TRUE(Default->Part->IsTemplate());
	EXPECT_FALSE(NewObject<UTestOwner>()->IsTemplate());
}

TEST(UClass, ListsTheClassesDerivedFromIt)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UTestOwner::StaticClass(), Classes);
	EXPECT_EQ(Classes, (TArray<UClass*>{UTestDerivedOwner::StaticClass()}));
	TArray<UClass*> Direct;
	GetDerivedClasses(UObject::StaticClass(), Direct, false);
	EXPECT_TRUE(Direct.Contains(UTestOwner::StaticClass()));
	EXPECT_FALSE(Direct.Contains(UTestDerivedOwner::StaticClass()));
	TArray<UClass*> All;
	GetDerivedClasses(UObject::StaticClass(), All);
	EXPECT_TRUE(All.Contains(UTestDerivedOwner::StaticClass()));
	EXPECT_FALSE(All.Contains(UObject::StaticClass()));
}

TEST(UStruct, ListsItsOwnPropertiesInOrderBeforeThoseOfItsSuper)
{
	EXPECT_EQ(GetPropertyNames(FTestLabelledPoint::StaticStruct()),
		(std::vector<std::string>{"Colour", "X", "Label", "Target"}));
	EXPECT_EQ(
		GetPropertyNames(UTestNode::StaticClass()), (std::vector<std::string>{"Next", "Links", "Held", "HeldMany"}));
	EXPECT_EQ(GetPropertyNames(UTestAbstract::StaticClass()), std::vector<std::string>());
	EXPECT_EQ(GetPropertyNames(nullptr), std::vector<std::string>());
}

TEST(UStruct, ListsPropertiesOfOneKindOnly)
{
	std::vector<std::string> Names;
	for (TFieldIterator<FStructProperty> It(UTestEverything::StaticClass()); It; ++It)
	{
		Names.push_back(TCHAR_TO_UTF8(*It->GetName()));
	}
	EXPECT_EQ(Names, (std::vector<std::string>{"Place", "Turn", "Tint", "Point"}));
}

TEST(UStruct, FindsPropertiesByNameInAnyCase)
{
	const UClass* const Class = UTestDerivedOwner::StaticClass();
	EXPECT_EQ(Class->FindPropertyByName(TEXT("extra")), *TFieldIterator<FProperty>(Class));
	EXPECT_NE(Class->FindPropertyByName(TEXT("Secret")), nullptr);
	EXPECT_EQ(Class->FindPropertyByName(TEXT("Unknown")), nullptr);
	EXPECT_EQ(Class->FindPropertyByName(FName()), nullptr);
}

TEST(UScriptStruct, CopiesAndComparesInstances)
{
	const UScriptStruct* const Struct = FTestLabelledPoint::StaticStruct();
	EXPECT_EQ(Struct->GetStructureSize(), static_cast<int32>(sizeof(FTestLabelledPoint)));
	EXPECT_EQ(Struct->GetMinAlignment(), static_cast<int32>(alignof(FTestLabelledPoint)));
	FTestLabelledPoint Source;
	Source.Label = TEXT("another label");
	Source.Hidden = 4;
	FTestLabelledPoint Copy;
	EXPECT_FALSE(Struct->CompareScriptStruct(&Copy, &Source, 0));
	Struct->CopyScriptStruct(&Copy, &Source);
	EXPECT_TRUE(Struct->CompareScriptStruct(&Copy, &Source, 0));
	EXPECT_EQ(Copy.Hidden, 4);
	Copy.Colour = TEXT("Blue");
	EXPECT_FALSE(Struct->CompareScriptStruct(&Copy, &Source, 0));
}

TEST(HeaderToolOutput, KeepsStringsOfSpecifiersAsWritten)
{
	EXPECT_EQ(GetMetaData(AOddActor::StaticClass(), TEXT("Elaborated"), TEXT("Category")),
		"Quotes \"and\" \\ {braces}; // no comment");
	EXPECT_EQ(GetMetaData(AOddActor::StaticClass(), TEXT("Elaborated"), TEXT("Tip")), "a b");
	EXPECT_TRUE(AOddActor::StaticClass()->FindPropertyByName(TEXT("Elaborated"))->HasMetaData(TEXT("Bare")));
	EXPECT_EQ(GetMetaData(UTestEverything::StaticClass(), TEXT("Ratio"), TEXT("ClampMin")), "-1.5");
}

TEST(HeaderToolOutput, HoldsExactlyTheDeclaredProperties)
{
	EXPECT_EQ(GetPropertyNames(AOddActor::StaticClass()),
		(std::vector<std::string>{
			"Elaborated", "First", "Braced", "Pointer", "Ratio", "Tricky", "Protected", "Hidden"}));
	EXPECT_EQ(GetPropertyNames(FOddTight::StaticStruct()), (std::vector<std::string>{"A", "B"}));
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("Ghost")), nullptr);
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("Nobody")), nullptr);
}

TEST(HeaderToolOutput, LeavesTheRestOfTheHeaderAlone)
{
	const AOddActor* const Object = NewObject<AOddActor>();
	EXPECT_EQ(Object->Separated + Object->Conditional + FOddPlain().Value, 1002);
	EXPECT_EQ(Object->Tricky, FString(TEXT("; } { UPROPERTY() \" :")));
	EXPECT_EQ(Object->Inlined() + AOddActor::Twice(), 6);
	EXPECT_NE(std::string(OddRawText).find("UGhost"), std::string::npos);
}

TEST(Cast, GivesTheObjectOrNull)
{
	UObject* const Object = NewObject<UTestDerivedOwner>();
	const UObject* const ConstObject = Object;
	EXPECT_EQ(Cast<UTestOwner>(Object), Object);
	EXPECT_EQ(Cast<UTestOwner>(ConstObject), Object);
	EXPECT_EQ(Cast<UTestNode>(Object), nullptr);
	EXPECT_EQ(Cast<UTestNode>(static_cast<UObject*>(nullptr)), nullptr);
	EXPECT_TRUE(Object->IsA<UTestOwner>());
	EXPECT_FALSE(Object->IsA(UTestNode::StaticClass()));
}

TEST(CastDeathTest, DiesWhenACheckedCastFails)
{
	UObject* const Object = NewObject<UTestNode>(GetTransientPackage(), TEXT("NoOwner"));
	UObject* const Nothing = nullptr;
	EXPECT_EQ(CastChecked<UTestNode>(Object), Object);
	EXPECT_EQ(CastChecked<UTestNode>(Nothing, ECastCheckedType::NullAllowed), nullptr);
	EXPECT_EXIT(CastChecked<UTestOwner>(Object), ::testing::ExitedWithCode(3),
		"Cast of /Engine/Transient.NoOwner to TestOwner");
	EXPECT_EXIT(CastChecked<UTestOwner>(Nothing), ::testing::ExitedWithCode(3), "Cast of nullptr to TestOwner");
}

TEST(TSubclassOf, ReadsAsNullForAnotherClass)
{
	EXPECT_EQ(TSubclassOf<UTestOwner>(UTestDerivedOwner::StaticClass()).Get(), UTestDerivedOwner::StaticClass());
	EXPECT_EQ(*TSubclassOf<UTestOwner>(UTestNode::StaticClass()), nullptr);
	EXPECT_EQ(TSubclassOf<UTestOwner>(UObject::StaticClass()).Get(), nullptr);
	EXPECT_EQ(TSubclassOf<UTestOwner>().Get(), nullptr);
}
