// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "TestTypes.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
	template <typename PropertyType>
	PropertyType* Find(const TCHAR* Name)
	{
		return CastField<PropertyType>(UTestEverything::StaticClass()->FindPropertyByName(Name));
	}

	uint64 GetFlags(const UClass* Class, const TCHAR* Name)
	{
		return Class->FindPropertyByName(Name)->PropertyFlags;
	}

	/** Writes a value by reflection that differs from a new object's, and gives it back by reflection. */
	class FPropertyRoundTrip
	{
	public:
		explicit FPropertyRoundTrip(UClass* InClass)
			: A(NewObject<UObject>(GetOuter(), InClass)), B(NewObject<UObject>(GetOuter(), InClass))
		{}

		void Run(FProperty* Property)
		{
			SCOPED_TRACE(TCHAR_TO_UTF8(*(A->GetClass()->GetName() + TEXT(".") + Property->GetName())));
			void* const ValueA = Property->ContainerPtrToValuePtr<void>(static_cast<void*>(A));
			void* const ValueB = Property->ContainerPtrToValuePtr<void>(static_cast<void*>(B));
			if (!Property->ContainsObjectReference())
			{
				ASSERT_TRUE(Property->Identical(ValueA, ValueB));
			}
			Change(Property, ValueA);
			EXPECT_FALSE(Property->Identical(ValueA, ValueB));
			Property->CopyCompleteValue_InContainer(B, A);
			EXPECT_TRUE(Property->Identical_InContainer(A, B));
		}

	private:
		static UObject* GetOuter() { return NewObject<UTestNode>(); }

		void Change(FProperty* Property, void* Value)
		{
			if (FStructProperty* const Struct = CastField<FStructProperty>(Property))
			{
				FProperty* const Member = *TFieldIterator<FProperty>(Struct->Struct);
				Change(Member, Member->ContainerPtrToValuePtr<void>(Value));
			}
			else if (FArrayProperty* const Array = CastField<FArrayProperty>(Property))
			{
				FScriptArrayHelper(Array, Value).AddValue();
			}
			else if (FObjectProperty* const Object = CastField<FObjectProperty>(Property))
			{
				Object->SetObjectPropertyValue(Value, Object->PropertyClass->GetDefaultObject());
			}
			else
			{
				ChangeScalar(Property, Value);
			}
		}

		static void ChangeScalar(FProperty* Property, void* Value)
		{
			if (FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
			{
				Bool->SetPropertyValue(Value, !Bool->GetPropertyValue(Value));
			}
			else if (FIntProperty* const Int = CastField<FIntProperty>(Property))
			{
				Int->SetPropertyValue(Value, Int->GetPropertyValue(Value) + 1);
			}
			else if (FFloatProperty* const Float = CastField<FFloatProperty>(Property))
			{
				Float->SetPropertyValue(Value, Float->GetPropertyValue(Value) + 1.0f);
			}
			else if (FStrProperty* const String = CastField<FStrProperty>(Property))
			{
				String->SetPropertyValue(Value, TEXT("changed"));
			}
			else if (FNameProperty* const Name = CastField<FNameProperty>(Property))
			{
				Name->SetPropertyValue(Value, TEXT("Changed"));
			}
			else
			{
				FTextProperty* const Text = CastField<FTextProperty>(Property);
				ASSERT_NE(Text, nullptr) << "a property of an unknown kind";
				Text->SetPropertyValue(Value, FText::FromString(TEXT("changed")));
			}
		}

		UObject* A;
		UObject* B;
	};
}

TEST(AllClasses, HaveADefaultObjectAndPropertiesThatCanBeWrittenAndRead)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UObject::StaticClass(), Classes);
	int32 NumProperties = 0;
	for (UClass* Class : Classes)
	{
		ASSERT_NE(Class->GetDefaultObject(), nullptr);
		EXPECT_EQ(Class->GetDefaultObject()->GetClass(), Class);
		EXPECT_EQ(Class->FindPropertyByName(TEXT("NoSuchProperty")), nullptr);
		EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, *Class->GetName()), Class);
		if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Intrinsic))
		{
			continue;
		}
		FPropertyRoundTrip RoundTrip(Class);
		for (TFieldIterator<FProperty> It(Class); It; ++It, ++NumProperties)
		{
			RoundTrip.Run(*It);
		}
	}
	EXPECT_GT(NumProperties, 40);
}

TEST(FProperty, HoldsAValueOutsideOfAnObject)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	Object->Text = TEXT("a text that is too long to stand in the string itself");
	Object->Shown = FText::FromString(Object->Text);
	Object->Node = NewObject<UTestNode>();
	Object->Point.Label = Object->Text;
	Object->Point.Hidden = 5;
	Object->Strings = {Object->Text};
	Object->Points = {Object->Point};
	Object->Nodes = {Object->Node};
	for (TFieldIterator<FProperty> It(Object->GetClass()); It; ++It)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*It->GetName()));
		std::vector<uint8> Memory(static_cast<size_t>(It->ElementSize), 0xCD);
		void* const Value = Memory.data();
		It->InitializeValue(Value);
		It->CopyCompleteValue(Value, It->ContainerPtrToValuePtr<void>(static_cast<void*>(Object)));
		EXPECT_TRUE(It->Identical(Value, It->ContainerPtrToValuePtr<void>(static_cast<void*>(Object))));
		It->DestroyValue(Value);
	}
}

TEST(FProperty, BeginsAValueWithItsDefault)
{
	const auto Begin = [](const TCHAR* Name, const std::function<void(const void*)>& Look)
	{
		const FProperty* const Property = UTestEverything::StaticClass()->FindPropertyByName(Name);
		std::vector<uint8> Memory(static_cast<size_t>(Property->ElementSize), 0xCD);
		Property->InitializeValue(Memory.data());
		Look(Memory.data());
		Property->DestroyValue(Memory.data());
	};
	Begin(TEXT("bSwitch"), [](const void* Value) { EXPECT_FALSE(*static_cast<const bool*>(Value)); });
	Begin(TEXT("Count"), [](const void* Value) { EXPECT_EQ(*static_cast<const int32*>(Value), 0); });
	Begin(TEXT("Ratio"), [](const void* Value) { EXPECT_EQ(*static_cast<const float*>(Value), 0.0f); });
	Begin(TEXT("Node"), [](const void* Value) { EXPECT_EQ(*static_cast<UTestNode* const*>(Value), nullptr); });
	Begin(
		TEXT("Points"), [](const void* Value) { EXPECT_EQ(static_cast<const TArray<FTestPoint>*>(Value)->Num(), 0); });
	Begin(TEXT("Point"),
		[](const void* Value)
		{
			const FTestPoint& Point = *static_cast<const FTestPoint*>(Value);
			EXPECT_EQ(Point.X, 7);
			EXPECT_TRUE(Point.Label.Equals(TEXT("origin")));
			EXPECT_EQ(Point.Hidden, 0);
		});
}

TEST(FProperty, ComparesNumbersByTheirBits)
{
	const FFloatProperty* const Ratio = Find<FFloatProperty>(TEXT("Ratio"));
	const float Zeros[] = {0.0f, -0.0f};
	const float NoNumber = std::numeric_limits<float>::quiet_NaN();
	EXPECT_FALSE(Ratio->Identical(&Zeros[0], &Zeros[1]));
	EXPECT_TRUE(Ratio->Identical(&Zeros[1], &Zeros[1]));
	EXPECT_TRUE(Ratio->Identical(&NoNumber, &NoNumber));
	EXPECT_FALSE(Ratio->Identical(&NoNumber, &Zeros[0]));
}

TEST(FProperty, ReadsAndWritesTheMember)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	Find<FBoolProperty>(TEXT("bSwitch"))->SetPropertyValue(&Object->bSwitch, false);
	void* const Count = Find<FIntProperty>(TEXT("Count"))->ContainerPtrToValuePtr<void>(static_cast<void*>(Object));
	EXPECT_EQ(Count, &Object->Count);
	Find<FIntProperty>(TEXT("Count"))->SetPropertyValue(Count, -8);
	EXPECT_FALSE(Object->bSwitch);
	EXPECT_EQ(Object->Count, -8);
	Object->Count = 12;
	EXPECT_EQ(Find<FIntProperty>(TEXT("Count"))->GetPropertyValue_InContainer(Object), 12);
	Object->Ratio = 2.5f;
	EXPECT_EQ(Find<FFloatProperty>(TEXT("Ratio"))->GetPropertyValue_InContainer(Object), 2.5f);
	Object->Text = TEXT("new");
	EXPECT_EQ(Find<FStrProperty>(TEXT("Text"))->GetPropertyValue_InContainer(Object), FString(TEXT("new")));
	Object->Name = TEXT("NewName");
	EXPECT_EQ(Find<FNameProperty>(TEXT("Name"))->GetPropertyValue_InContainer(Object), FName(TEXT("NewName")));
	Object->Shown = FText::FromString(TEXT("shown"));
	EXPECT_EQ(
		Find<FTextProperty>(TEXT("Shown"))->GetPropertyValue_InContainer(Object).ToString(), FString(TEXT("shown")));
}

TEST(FProperty, IsOfOneKindOnly)
{
	EXPECT_NE(Find<FProperty>(TEXT("Count")), nullptr);
	EXPECT_EQ(Find<FFloatProperty>(TEXT("Count")), nullptr);
	EXPECT_EQ(Find<FIntProperty>(TEXT("Numbers")), nullptr);
	EXPECT_EQ(CastField<FProperty>(static_cast<FField*>(nullptr)), nullptr);
	ASSERT_NE(Find<FArrayProperty>(TEXT("Numbers")), nullptr);
	EXPECT_NE(CastField<FIntProperty>(Find<FArrayProperty>(TEXT("Numbers"))->Inner), nullptr);
	EXPECT_EQ(CastField<FObjectProperty>(Find<FArrayProperty>(TEXT("Nodes"))->Inner)->PropertyClass,
		UTestNode::StaticClass());
	EXPECT_EQ(
		CastField<FStructProperty>(Find<FArrayProperty>(TEXT("Points"))->Inner)->Struct, FTestPoint::StaticStruct());
}

TEST(FProperty, KeepsTheFlagsOfItsSpecifiers)
{
	const UClass* const Class = UTestEverything::StaticClass();
	EXPECT_EQ(GetFlags(Class, TEXT("bSwitch")), CPF_Edit | CPF_BlueprintVisible);
	EXPECT_EQ(GetFlags(Class, TEXT("Count")), CPF_Edit | CPF_EditConst | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	EXPECT_EQ(GetFlags(Class, TEXT("Ratio")), CPF_Edit | CPF_BlueprintVisible | CPF_Interp);
	EXPECT_EQ(GetFlags(Class, TEXT("Text")), CPF_Edit | CPF_AdvancedDisplay);
	EXPECT_EQ(GetFlags(Class, TEXT("Place")), CPF_Transient);
	EXPECT_EQ(GetFlags(Class, TEXT("Turn")), CPF_None);
	EXPECT_EQ(GetFlags(UTestOwner::StaticClass(), TEXT("Part")),
		CPF_Edit | CPF_EditConst | CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference);
	EXPECT_TRUE(Class->FindPropertyByName(TEXT("Place"))->HasAnyPropertyFlags(CPF_Transient | CPF_Edit));
	EXPECT_FALSE(Class->FindPropertyByName(TEXT("Place"))->HasAnyPropertyFlags(CPF_Edit));
}

TEST(FProperty, OwnsItsObjectWhenTheClassSaysSo)
{
	EXPECT_EQ(GetFlags(UTestOwner::StaticClass(), TEXT("Spare")), CPF_InstancedReference | CPF_ExportObject);
	EXPECT_EQ(GetFlags(UTestOwner::StaticClass(), TEXT("Shared")), CPF_None);
}

TEST(FProperty, KeepsTheMetadataOfItsDeclaration)
{
	const FProperty* const Property = Find<FProperty>(TEXT("bSwitch"));
	EXPECT_STREQ(TCHAR_TO_UTF8(*Property->GetMetaData(TEXT("Category"))), "Simple|Flags");
	EXPECT_STREQ(TCHAR_TO_UTF8(*Property->GetMetaData("category")), "Simple|Flags");
	EXPECT_FALSE(Property->HasMetaData(TEXT("DisplayName")));
	EXPECT_TRUE(Property->GetMetaData(TEXT("DisplayName")).IsEmpty());
}

TEST(FProperty, TellsStringsAndNamesApartByCase)
{
	UTestEverything* const A = NewObject<UTestEverything>();
	UTestEverything* const B = NewObject<UTestEverything>();
	A->Text = TEXT("TEXT");
	EXPECT_FALSE(Find<FProperty>(TEXT("Text"))->Identical_InContainer(A, B));
	A->Name = TEXT("NAME");
	EXPECT_FALSE(Find<FProperty>(TEXT("Name"))->Identical_InContainer(A, B));
	B->Name = TEXT("NAME");
	EXPECT_TRUE(Find<FProperty>(TEXT("Name"))->Identical_InContainer(A, B));
}

TEST(FProperty, TellsTextsApartByIdentity)
{
	UTestEverything* const A = NewObject<UTestEverything>();
	UTestEverything* const B = NewObject<UTestEverything>();
	A->Shown = NSLOCTEXT("Test", "One", "same");
	B->Shown = NSLOCTEXT("Test", "Two", "same");
	EXPECT_FALSE(Find<FProperty>(TEXT("Shown"))->Identical_InContainer(A, B));
	B->Shown = NSLOCTEXT("Test", "One", "same");
	EXPECT_TRUE(Find<FProperty>(TEXT("Shown"))->Identical_InContainer(A, B));
	B->Shown = FText::FromString(TEXT("same"));
	EXPECT_FALSE(Find<FProperty>(TEXT("Shown"))->Identical_InContainer(A, B));
	A->Shown = FText::FromString(TEXT("same"));
	EXPECT_TRUE(Find<FProperty>(TEXT("Shown"))->Identical_InContainer(A, B));
	A->Shown = FText::FromString(TEXT("Same"));
	EXPECT_FALSE(Find<FProperty>(TEXT("Shown"))->Identical_InContainer(A, B));
}

TEST(FProperty, ComparesArraysByLengthAndElements)
{
	UTestEverything* const A = NewObject<UTestEverything>();
	UTestEverything* const B = NewObject<UTestEverything>();
	A->Strings = {TEXT("a"), TEXT("b")};
	B->Strings = {TEXT("a")};
	EXPECT_FALSE(Find<FProperty>(TEXT("Strings"))->Identical_InContainer(A, B));
	B->Strings.Add(TEXT("B"));
	EXPECT_FALSE(Find<FProperty>(TEXT("Strings"))->Identical_InContainer(A, B));
	B->Strings[1] = TEXT("b");
	EXPECT_TRUE(Find<FProperty>(TEXT("Strings"))->Identical_InContainer(A, B));
}

TEST(FObjectProperty, ReadsAndWritesPointers)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	UTestNode* const Node = NewObject<UTestNode>();
	const FObjectProperty* const Property = Find<FObjectProperty>(TEXT("Node"));
	Property->SetObjectPropertyValue(&Object->Node, Node);
	EXPECT_EQ(Object->Node, Node);
	EXPECT_EQ(Property->GetObjectPropertyValue_InContainer(Object), Node);
	Property->SetObjectPropertyValue(&Object->Node, nullptr);
	EXPECT_EQ(Object->Node, nullptr);
}

TEST(FObjectPropertyDeathTest, DiesOfAnObjectOfAnotherClass)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	const FObjectProperty* const Property = Find<FObjectProperty>(TEXT("Node"));
	EXPECT_EXIT(Property->SetObjectPropertyValue(&Object->Node, Object), ::testing::ExitedWithCode(3),
		"Value->IsA\\(PropertyClass\\)");
}

TEST(FStructProperty, KnowsTheMembersOfCoreStructures)
{
	UTestEverything* const Object = NewObject<UTestEverything>();
	const FStructProperty* const Place = Find<FStructProperty>(TEXT("Place"));
	const FProperty* const Z = Place->Struct->FindPropertyByName(TEXT("Z"));
	*Z->ContainerPtrToValuePtr<float>(Place->ContainerPtrToValuePtr<void>(static_cast<void*>(Object))) = 9.0f;
	EXPECT_EQ(Object->Place.Z, 9.0f);
	EXPECT_NE(TBaseStructure<FRotator>::Get()->FindPropertyByName(TEXT("Yaw")), nullptr);
	EXPECT_NE(TBaseStructure<FLinearColor>::Get()->FindPropertyByName(TEXT("A")), nullptr);
	EXPECT_STREQ(TCHAR_TO_UTF8(*Place->Struct->GetPathName()), "/Script/CoreUObject.Vector");
}
