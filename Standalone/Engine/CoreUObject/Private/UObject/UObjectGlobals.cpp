// Copyright Corvane. MIT License.
#include "UObject/UObjectGlobals.h"

#include "IntrinsicClasses.h"
#include "ObjectConstruction.h"
#include "ObjectTable.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

ITransaction* GUndo = nullptr;
FCoreUObjectDelegates::FOnObjectModified FCoreUObjectDelegates::OnObjectModified;
FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	check(Params.Class != nullptr);
	const bool bDefaultObject = (Params.SetFlags & RF_ClassDefaultObject) != 0;
	checkf(bDefaultObject || !Params.Class->HasAnyClassFlags(CLASS_Abstract), TEXT("%s is abstract"),
		*Params.Class->GetName());
	checkf(Params.Outer || Params.Class->IsChildOf(UPackage::StaticClass()), TEXT("A %s needs an outer"),
		*Params.Class->GetName());
	FStaticConstructObjectParameters Named(Params);
	if (Named.Name.IsNone())
	{
		Named.Name = MakeUniqueObjectName(Named.Outer, Named.Class);
	}
	checkf(!FObjectTable::Get().Find(Named.Outer, Named.Name), TEXT("There is already an object %s in %s"),
		*Named.Name.ToString(), Named.Outer ? *Named.Outer->GetPathName() : TEXT("memory"));
	return FObjectConstruction::Construct(Named);
}

void CheckNotInConstructor(const FName& Name)
{
	checkf(!Name.IsNone() || !FObjectConstruction::GetCurrent(),
		TEXT("NewObject without a name within a constructor: use CreateDefaultSubobject"));
}

UPackage* GetTransientPackage()
{
	UPackage*& Package = FIntrinsicClasses::Get().TransientPackage;
	if (!Package)
	{
		Package = CreatePackage(TEXT("/Engine/Transient"));
		Package->SetFlags(RF_Transient);
		Package->AddToRoot();
	}
	return Package;
}

namespace
{
	/** Walks down a path of names, divided by dots and colons. */
	UObject* FindByPath(UObject* Outer, const FString& Path)
	{
		int32 Begin = 0;
		while (Begin <= Path.Len())
		{
			int32 End = Begin;
			while (End < Path.Len() && Path[End] != TEXT('.') && Path[End] != TEXT(':'))
			{
				++End;
			}
			Outer = End > Begin ? FObjectTable::Get().Find(Outer, FName(*Path.Mid(Begin, End - Begin), FNAME_Find))
								: nullptr;
			if (!Outer)
			{
				return nullptr;
			}
			Begin = End + 1;
		}
		return Outer;
	}

	bool IsOfClass(const UObject* Object, const UClass* Class, bool bExactClass)
	{
		return bExactClass ? Object->GetClass() == Class : Object->IsA(Class);
	}
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	const FString Path(Name);
	const bool bAnyPackage = InOuter == ANY_PACKAGE;
	int32 Dot = INDEX_NONE;
	if (bAnyPackage && !Path.FindChar(TEXT('.'), Dot) && !Path.IsEmpty())
	{
		const FName Wanted(Name, FNAME_Find);
		return FObjectTable::Get().FindIf([&](const UObject* Object)
			{ return Object->GetFName() == Wanted && IsOfClass(Object, Class, ExactClass); });
	}
	UObject* const Found = FindByPath(bAnyPackage ? nullptr : InOuter, Path);
	return Found && IsOfClass(Found, Class, ExactClass) ? Found : nullptr;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	UObject* const Found = FObjectTable::Get().Find(InOuter, FName(PackageName));
	return Found && Found->IsA<UPackage>() ? static_cast<UPackage*>(Found) : nullptr;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	FIntrinsicClasses::Get();
	if (UPackage* const Package = FindPackage(nullptr, PackageName))
	{
		return Package;
	}
	FStaticConstructObjectParameters Params(UPackage::StaticClass());
	Params.Name = FName(PackageName);
	Params.SetFlags = RF_Public;
	return static_cast<UPackage*>(StaticConstructObject_Internal(Params));
}

FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName BaseName)
{
	const FName Base(BaseName.IsNone() ? Class->GetFName() : BaseName, 0);
	FName Name;
	do
	{
		Name = FName(Base, FObjectTable::Get().TakeNumber(Parent, Base));
	} while (FObjectTable::Get().Find(Parent, Name));
	return Name;
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects)
{
	for (UObject* Object : FObjectTable::Get().FindInside(Outer))
	{
		Results.Add(Object);
		if (bIncludeNestedObjects)
		{
			GetObjectsWithOuter(Object, Results, true);
		}
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	for (UClass* Class : FIntrinsicClasses::Get().AllClasses)
	{
		const bool bDerived = bRecursive ? Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor)
										 : Class->GetSuperClass() == ClassToLookFor;
		if (bDerived)
		{
			Results.Add(Class);
		}
	}
}
