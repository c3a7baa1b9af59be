// Copyright Corvane. MIT License.
#include "UObject/Class.h"

#include "UObject/UnrealType.h"

namespace
{
	const FString NoMetaData;
}

const FString& UField::GetMetaData(const FName& Key) const
{
	const FString* const Value = MetaData.Find(Key);
	return Value ? *Value : NoMetaData;
}

const FString& FField::GetMetaData(const FName& Key) const
{
	const FString* const Value = MetaData.Find(Key);
	return Value ? *Value : NoMetaData;
}

UStruct::~UStruct()
{
	while (ChildProperties)
	{
		FField* const First = ChildProperties;
		ChildProperties = First->Next;
		delete First;
	}
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
	BaseChain.Reset();
	if (SuperStruct)
	{
		BaseChain = SuperStruct->BaseChain;
	}
	Depth = BaseChain.Num();
	BaseChain.Add(this);
}

void UStruct::AddProperty(FProperty* Property)
{
	(LastProperty ? LastProperty->Next : ChildProperties) = Property;
	LastProperty = Property;
	if (Property->ContainsObjectReference())
	{
		ReferenceProperties.Add(Property);
	}
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (It->GetFName() == InName)
		{
			return *It;
		}
	}
	return nullptr;
}

void UStruct::CollectReferences(void* Instance, FReferenceCollector& Collector, const UObject* Referencer) const
{
	for (const UStruct* Struct = this; Struct; Struct = Struct->SuperStruct)
	{
		for (const FProperty* Property : Struct->ReferenceProperties)
		{
			Property->CollectReferences(Property->ContainerPtrToValuePtr<void>(Instance), Collector, Referencer);
		}
	}
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (!It->Identical_InContainer(A, B, PortFlags))
		{
			return false;
		}
	}
	return true;
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (!ClassDefaultObject && bCreateIfNeeded)
	{
		if (const UClass* const Parent = GetSuperClass())
		{
			Parent->GetDefaultObject();
		}
		FStaticConstructObjectParameters Params(this);
		Params.Outer = GetOuter();
		Params.Name = FName(*(TEXT("Default__") + GetName()));
		Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
		const_cast<UClass*>(this)->ClassDefaultObject = StaticConstructObject_Internal(Params);
	}
	return ClassDefaultObject;
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UClass*>(InThis)->ClassDefaultObject, InThis);
}
