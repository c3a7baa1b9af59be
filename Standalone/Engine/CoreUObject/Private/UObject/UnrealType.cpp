// Copyright Corvane. MIT License.
#include "UObject/UnrealType.h"

#include <cstring>

bool IsIdenticalPropertyValue(const float& A, const float& B)
{
	// A zero has a sign, and what is no number is at least itself.
	return std::memcmp(&A, &B, sizeof(A)) == 0;
}

bool IsIdenticalPropertyValue(const FString& A, const FString& B)
{
	return A.Equals(B, ESearchCase::CaseSensitive);
}

bool IsIdenticalPropertyValue(const FName& A, const FName& B)
{
	// Two spellings of one name are equal, but not the same value to whoever reads them.
	return A == B && IsIdenticalPropertyValue(A.ToString(), B.ToString());
}

bool IsIdenticalPropertyValue(const FText& A, const FText& B)
{
	if (A.IdenticalTo(B))
	{
		return true;
	}
	// Texts without identity are the same if they read the same.
	const bool bPlain = !FTextInspector::GetKey(A).IsSet() && !FTextInspector::GetKey(B).IsSet();
	return bPlain && IsIdenticalPropertyValue(A.ToString(), B.ToString());
}

FObjectProperty::FObjectProperty(FName InName, UClass* InPropertyClass)
	: FProperty(InName, CASTCLASS_FObjectProperty, sizeof(UObject*)), PropertyClass(InPropertyClass)
{
	if (PropertyClass->HasAnyClassFlags(CLASS_DefaultToInstanced))
	{
		PropertyFlags = CPF_InstancedReference | CPF_ExportObject;
	}
}

UObject* FObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	// The member is a pointer to a derived class: the bytes are copied, since the compiler takes the two types for
	// unrelated.
	UObject* Value;
	std::memcpy(&Value, PropertyValueAddress, sizeof(Value));
	return Value;
}

void FObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	check(!Value || Value->IsA(PropertyClass));
	std::memcpy(PropertyValueAddress, &Value, sizeof(Value));
}

void FObjectProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	std::memmove(Dest, Src, sizeof(UObject*));
}

bool FObjectProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetObjectPropertyValue(A) == GetObjectPropertyValue(B);
}

void FObjectProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* Referencer) const
{
	UObject* Object = GetObjectPropertyValue(Value);
	UObject* const Old = Object;
	Collector.AddReferencedObject(Object, Referencer, this);
	if (Object != Old)
	{
		SetObjectPropertyValue(Value, Object);
	}
}

FStructProperty::FStructProperty(FName InName, UScriptStruct* InStruct)
	: FProperty(InName, CASTCLASS_FStructProperty, static_cast<SIZE_T>(InStruct->GetStructureSize())), Struct(InStruct)
{}

void FStructProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	Struct->CopyScriptStruct(Dest, Src);
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return Struct->CompareScriptStruct(A, B, PortFlags);
}

void FStructProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* Referencer) const
{
	Struct->CollectReferences(Value, Collector, Referencer);
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptArrayHelper HelperA(this, A);
	FScriptArrayHelper HelperB(this, B);
	if (HelperA.Num() != HelperB.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < HelperA.Num(); ++Index)
	{
		if (!Inner->Identical(HelperA.GetRawPtr(Index), HelperB.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* Referencer) const
{
	FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Inner->CollectReferences(Helper.GetRawPtr(Index), Collector, Referencer);
	}
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index)
{
	if (Num() == 0)
	{
		check(Index == 0);
		return nullptr;
	}
	check(IsValidIndex(Index));
	return static_cast<uint8*>(Property->GetArrayData(Array)) + Property->Inner->ElementSize * Index;
}

int32 FScriptArrayHelper::AddValue()
{
	const int32 Index = Num();
	Property->SetArrayNum(Array, Index + 1);
	return Index;
}

void FScriptArrayHelper::EmptyValues()
{
	Property->SetArrayNum(Array, 0);
}

void FScriptArrayHelper::EmptyAndAddValues(int32 Count)
{
	EmptyValues();
	Property->SetArrayNum(Array, Count);
}
