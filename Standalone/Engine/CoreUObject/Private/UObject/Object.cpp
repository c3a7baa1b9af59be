// Copyright Corvane. MIT License.
#include "UObject/Object.h"

#include "Misc/ITransaction.h"
#include "ObjectConstruction.h"
#include "ObjectTable.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

UObject::UObject()
{
	const FObjectInitializer* const Initializer = FObjectConstruction::GetCurrent();
	checkf(Initializer && Initializer->Obj == this,
		TEXT("Objects are made with NewObject or CreateDefaultSubobject only"));
	ObjectFlags = Initializer->Flags;
	ClassPrivate = Initializer->Class;
	NamePrivate = Initializer->Name;
	OuterPrivate = Initializer->Outer;
	InternalIndex = FObjectTable::Get().Add(this);
	FObjectTable::Get().AddName(this);
}

UObject::~UObject() {}

FString UObject::GetPathName(const UObject* StopOuter) const
{
	if (!OuterPrivate || OuterPrivate == StopOuter)
	{
		return GetName();
	}
	// The colon stands once, between the object that lies directly in the package and its first part.
	const bool bFirstPart =
		!OuterPrivate->IsA<UPackage>() && OuterPrivate->GetOuter() && OuterPrivate->GetOuter()->IsA<UPackage>();
	return OuterPrivate->GetPathName(StopOuter) + (bFirstPart ? TEXT(":") : TEXT(".")) + GetName();
}

UPackage* UObject::GetOutermost() const
{
	const UObject* Top = this;
	while (Top->OuterPrivate)
	{
		Top = Top->OuterPrivate;
	}
	return static_cast<UPackage*>(const_cast<UObject*>(Top));
}

bool UObject::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = OuterPrivate; Outer; Outer = Outer->OuterPrivate)
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return false;
}

UObject* UObject::GetTypedOuter(UClass* Target) const
{
	UObject* Outer = OuterPrivate;
	while (Outer && !Outer->IsA(Target))
	{
		Outer = Outer->OuterPrivate;
	}
	return Outer;
}

bool UObject::IsA(const UClass* SomeBase) const
{
	return ClassPrivate->IsChildOf(SomeBase);
}

bool UObject::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObject* Object = this; Object; Object = Object->OuterPrivate)
	{
		if (Object->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

void UObject::MarkPendingKill()
{
	checkf(!bRootSet, TEXT("%s is in the root set"), *GetPathName());
	bPendingKill = true;
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		const UClass* const Parent = ClassPrivate->GetSuperClass();
		return Parent ? Parent->GetDefaultObject() : nullptr;
	}
	if (OuterPrivate && !OuterPrivate->IsA<UPackage>())
	{
		UObject* const OuterArchetype = OuterPrivate->GetArchetype();
		UObject* const Part = OuterArchetype ? FObjectTable::Get().Find(OuterArchetype, NamePrivate) : nullptr;
		if (Part && IsA(Part->GetClass()))
		{
			return Part;
		}
	}
	return ClassPrivate->GetDefaultObject();
}

bool UObject::MarkPackageDirty() const
{
	UPackage* const Package = GetOutermost();
	if (HasAnyFlags(RF_Transient) || IsTemplate() || Package == GetTransientPackage())
	{
		return false;
	}
	Package->SetDirtyFlag(true);
	return true;
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	const bool bSaved = GUndo && HasAnyFlags(RF_Transactional);
	if (bSaved)
	{
		GUndo->SaveObject(this);
	}
	else if (bAlwaysMarkDirty)
	{
		MarkPackageDirty();
	}
	FCoreUObjectDelegates::OnObjectModified.Broadcast(this);
	return bSaved;
}

void UObject::PreEditChange(FProperty* /*PropertyAboutToChange*/)
{
	Modify();
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditUndo()
{
	FPropertyChangedEvent AnyProperty(nullptr);
	PostEditChangeProperty(AnyProperty);
}

UWorld* UObject::GetWorld() const
{
	return OuterPrivate ? OuterPrivate->GetWorld() : nullptr;
}

UObject* UObject::CreateDefaultSubobject(FName SubobjectFName, UClass* ClassToCreate, bool bIsTransient)
{
	const FObjectInitializer* const Initializer = FObjectConstruction::GetCurrent();
	checkf(Initializer && Initializer->Obj == this, TEXT("No object initializer found during construction."));
	checkf(!FObjectTable::Get().Find(this, SubobjectFName), TEXT("There is already a part %s of %s"),
		*SubobjectFName.ToString(), *GetPathName());
	checkf(!ClassToCreate->HasAnyClassFlags(CLASS_Abstract), TEXT("%s is abstract"), *ClassToCreate->GetName());
	return FObjectConstruction::ConstructSubobject(
		this, SubobjectFName, ClassToCreate, bIsTransient ? RF_Transient : RF_NoFlags);
}

void UObject::LowLevelRename(FName NewName, UObject* NewOuter)
{
	FObjectTable::Get().RemoveName(this);
	NamePrivate = NewName;
	OuterPrivate = NewOuter;
	FObjectTable::Get().AddName(this);
}
