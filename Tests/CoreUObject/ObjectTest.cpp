// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestTypes.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
	std::string ToUtf8(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}
}

TEST(UObject, IsNamedAfterItsClassWithARisingNumber)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Names"));
	const UTestNode* const First = NewObject<UTestNode>(Package);
	const UTestNode* const Second = NewObject<UTestNode>(Package);
	EXPECT_EQ(ToUtf8(First->GetName()), "TestNode_0");
	EXPECT_EQ(ToUtf8(Second->GetName()), "TestNode_1");
}

TEST(UObject, NeverGetsTheNameOfAnObjectThatIsThere)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/TakenNames"));
	NewObject<UTestNode>(Package, TEXT("TestNode_0"));
	NewObject<UTestNode>(Package, TEXT("testnode_1"));
	EXPECT_EQ(ToUtf8(NewObject<UTestNode>(Package)->GetName()), "TestNode_2");
}

TEST(UObject, NeverGetsTheNameOfAnObjectThatWasThere)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/OldNames"));
	Package->AddToRoot();
	NewObject<UTestNode>(Package);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(ToUtf8(NewObject<UTestNode>(Package)->GetName()), "TestNode_1");
	Package->RemoveFromRoot();
}

TEST(UObject, GetsAnUnusedNameOfAGivenBase)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/BaseNames"));
	NewObject<UTestNode>(Package, TEXT("Camera_0"));
	const FName Name = MakeUniqueObjectName(Package, UTestNode::StaticClass(), TEXT("Camera_7"));
	EXPECT_EQ(ToUtf8(Name.ToString()), "Camera_1");
}

TEST(UObject, HasAPathOfPackageObjectAndParts)
{
	UTestNode* const Top = NewObject<UTestNode>(CreatePackage(TEXT("/Game/Paths/Main")), TEXT("World"));
	UTestNode* const Level = NewObject<UTestNode>(Top, TEXT("Level"));
	const UTestNode* const Actor = NewObject<UTestNode>(Level, TEXT("Actor"));
	EXPECT_EQ(ToUtf8(Actor->GetPathName()), "/Game/Paths/Main.World:Level.Actor");
	EXPECT_EQ(ToUtf8(Actor->GetPathName(Top)), "Level.Actor");
	EXPECT_EQ(ToUtf8(Top->GetOutermost()->GetPathName()), "/Game/Paths/Main");
	EXPECT_EQ(ToUtf8(UTestNode::StaticClass()->GetPathName()), "/Script/CoreUObjectTests.TestNode");
}

TEST(UObject, IsFoundByItsPathInAnyCase)
{
	UTestNode* const Top = NewObject<UTestNode>(CreatePackage(TEXT("/Game/Found")), TEXT("World"));
	UTestNode* const Part = NewObject<UTestNode>(Top, TEXT("Part"));
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("/game/FOUND.world:part")), Part);
	EXPECT_EQ(FindObject<UTestNode>(ANY_PACKAGE, TEXT("/Game/Found.World:Part")), Part);
	EXPECT_EQ(FindObject<UTestNode>(Top, TEXT("Part")), Part);
	EXPECT_EQ(FindObject<UTestNode>(Top->GetOuter(), TEXT("World.Part")), Part);
	EXPECT_EQ(FindObject<UPackage>(nullptr, TEXT("/Game/Found")), Top->GetOutermost());
}

TEST(UObject, IsNotFoundUnderAWrongPathOrClass)
{
	UTestNode* const Top = NewObject<UTestNode>(CreatePackage(TEXT("/Game/NotFound")), TEXT("World"));
	EXPECT_EQ(FindObject<UTestOwner>(nullptr, TEXT("/Game/NotFound.World")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("/Game/NotFound.World.Part")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("/Game/NotFound.World.")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("World")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(ANY_PACKAGE, TEXT("")), nullptr);
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/Game/NotFound.World"), true), nullptr);
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/Game/NotFound.World")), Top);
}

TEST(UObject, KnowsItsOuters)
{
	UTestOwner* const Top = NewObject<UTestOwner>(CreatePackage(TEXT("/Game/Outers")));
	const UTestInnerPart* const Inner = Top->Part->Inner;
	EXPECT_EQ(Inner->GetTypedOuter<UTestOwner>(), Top);
	EXPECT_EQ(Inner->GetTypedOuter<UPackage>(), Top->GetOutermost());
	EXPECT_EQ(Inner->GetTypedOuter<UTestNode>(), nullptr);
	EXPECT_TRUE(Inner->IsIn(Top));
	EXPECT_FALSE(Top->IsIn(Top));
	EXPECT_EQ(Inner->GetWorld(), nullptr);
}

TEST(UObject, ListsWhatLiesInItInTheOrderOfMaking)
{
	UTestNode* const Top = NewObject<UTestNode>();
	UTestNode* const Z = NewObject<UTestNode>(Top, TEXT("Z"));
	UTestNode* const A = NewObject<UTestNode>(Top, TEXT("A"));
	UTestNode* const Nested = NewObject<UTestNode>(Z, TEXT("Nested"));
	TArray<UObject*> Direct;
	GetObjectsWithOuter(Top, Direct, false);
	TArray<UObject*> All;
	GetObjectsWithOuter(Top, All);
	EXPECT_EQ(Direct, (TArray<UObject*>{Z, A}));
	EXPECT_EQ(All, (TArray<UObject*>{Z, Nested, A}));
}

TEST(UObject, MarksItsPackageDirty)
{
	UTestOwner* const Object = NewObject<UTestOwner>(CreatePackage(TEXT("/Game/Dirty")));
	EXPECT_FALSE(Object->GetOutermost()->IsDirty());
	EXPECT_TRUE(Object->Part->MarkPackageDirty());
	EXPECT_TRUE(Object->GetOutermost()->IsDirty());
	Object->GetOutermost()->SetDirtyFlag(false);
	EXPECT_FALSE(Object->GetOutermost()->IsDirty());
}

TEST(UObject, MarksNoPackageThatIsNeverSaved)
{
	EXPECT_FALSE(NewObject<UTestNode>()->MarkPackageDirty());
	EXPECT_FALSE(GetTransientPackage()->IsDirty());
	EXPECT_FALSE(GetDefault<UTestOwner>()->MarkPackageDirty());
	EXPECT_FALSE(GetDefault<UTestOwner>()->Part->MarkPackageDirty());
	EXPECT_FALSE(UTestOwner::StaticClass()->GetOutermost()->IsDirty());
	UTestOwner* const Saved = NewObject<UTestOwner>(CreatePackage(TEXT("/Game/NeverDirty")));
	EXPECT_FALSE(Saved->GetSecret()->MarkPackageDirty());
	EXPECT_FALSE(Saved->GetOutermost()->IsDirty());
	GetTransientPackage()->SetDirtyFlag(true);
	EXPECT_FALSE(GetTransientPackage()->IsDirty());
}

TEST(UObject, IsInvalidOncePendingKill)
{
	UTestNode* const Object = NewObject<UTestNode>();
	EXPECT_TRUE(IsValid(Object));
	Object->MarkPendingKill();
	EXPECT_TRUE(Object->IsPendingKill());
	EXPECT_FALSE(IsValid(Object));
	EXPECT_FALSE(IsValid(nullptr));
}

TEST(UObject, SetsAndClearsFlags)
{
	UTestNode* const Object = NewObject<UTestNode>(GetTransientPackage(), TEXT("Flagged"), RF_Transactional);
	EXPECT_TRUE(Object->HasAnyFlags(RF_Transactional | RF_Public));
	Object->SetFlags(RF_Transient);
	Object->ClearFlags(RF_Transactional);
	EXPECT_EQ(Object->GetFlags(), RF_Transient);
}

TEST(UPackage, IsMadeOnceForAName)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Once"));
	EXPECT_EQ(CreatePackage(TEXT("/Game/once")), Package);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Once")), Package);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Twice")), nullptr);
	EXPECT_EQ(ToUtf8(Package->GetName()), "/Game/Once");
	EXPECT_EQ(Package->GetOuter(), nullptr);
}

TEST(UObjectDeathTest, DiesWhenARootedObjectIsMarkedPendingKill)
{
	UTestNode* const Object = NewObject<UTestNode>();
	Object->AddToRoot();
	EXPECT_EXIT(Object->MarkPendingKill(), ::testing::ExitedWithCode(3), "is in the root set");
	Object->RemoveFromRoot();
	EXPECT_FALSE(Object->IsRooted());
}
