// Copyright Corvane. MIT License.
#include "ObjectConstruction.h"

#include "ObjectTable.h"
#include "UObject/UnrealType.h"

namespace
{
	/** The innermost object whose constructor runs. */
	FObjectInitializer* CurrentInitializer = nullptr;

	/** The object that has the same place within ToRoot as Part has within FromRoot, or null. */
	UObject* FindCounterpart(const UObject* Part, const UObject* FromRoot, UObject* ToRoot)
	{
		if (Part == FromRoot)
		{
			return ToRoot;
		}
		UObject* const Outer = Part->GetOuter() ? FindCounterpart(Part->GetOuter(), FromRoot, ToRoot) : nullptr;
		return Outer ? FObjectTable::Get().Find(Outer, Part->GetFName()) : nullptr;
	}

	/** Turns references into a template into references to the same parts of the object made from it. */
	class FPartsOfTemplate : public FReferenceCollector
	{
	public:
		FPartsOfTemplate(UObject* InRoot, UObject* InRootTemplate) : Root(InRoot), RootTemplate(InRootTemplate) {}

	protected:
		virtual void HandleObjectReference(
			UObject*& InObject, const UObject*, const FProperty* InReferencingProperty) override
		{
			if (!InObject || (InObject != RootTemplate && !InObject->IsIn(RootTemplate)))
			{
				return;
			}
			UObject* Counterpart = FindCounterpart(InObject, RootTemplate, Root);
			if (!Counterpart && InReferencingProperty->HasAnyPropertyFlags(CPF_InstancedReference))
			{
				Counterpart = MakeCounterpart(InObject);
			}
			// Any other reference keeps pointing at the template's part, which lives as long as the template.
			if (Counterpart && Counterpart->IsA(InObject->GetClass()))
			{
				InObject = Counterpart;
			}
		}

	private:
		/** The template owns a part that no constructor makes: the new object gets one of its own. */
		UObject* MakeCounterpart(UObject* Part)
		{
			UObject* const Outer = FindCounterpart(Part->GetOuter(), RootTemplate, Root);
			if (!Outer)
			{
				return nullptr;
			}
			FStaticConstructObjectParameters Params(Part->GetClass());
			Params.Outer = Outer;
			Params.Name = Part->GetFName();
			Params.SetFlags = Outer->GetFlags() & RF_PropagateToSubObjects;
			Params.Template = Part;
			return StaticConstructObject_Internal(Params);
		}

		UObject* Root;
		UObject* RootTemplate;
	};

	/** Gives Object the template's values; references into RootTemplate become references into Root. */
	void CopyValues(UObject* Object, UObject* Template, UObject* Root, UObject* RootTemplate)
	{
		if (!Object->IsA(Template->GetClass()))
		{
			return;
		}
		FPartsOfTemplate Parts(Root, RootTemplate);
		for (TFieldIterator<FProperty> It(Template->GetClass()); It; ++It)
		{
			It->CopyCompleteValue_InContainer(Object, Template);
			It->CollectReferences(It->ContainerPtrToValuePtr<void>(static_cast<void*>(Object)), Parts, Object);
		}
	}
}

FObjectInitializer* FObjectConstruction::GetCurrent()
{
	return CurrentInitializer;
}

UObject* FObjectConstruction::ConstructBare(FObjectInitializer& Initializer)
{
	const UClass* const Class = Initializer.Class;
	const SIZE_T Size = Class ? static_cast<SIZE_T>(Class->GetStructureSize()) : sizeof(UClass);
	const SIZE_T Alignment = Class ? static_cast<SIZE_T>(Class->GetMinAlignment()) : alignof(UClass);
	Initializer.Obj = static_cast<UObject*>(FObjectTable::Allocate(Size, Alignment));
	Initializer.Parent = CurrentInitializer;
	CurrentInitializer = &Initializer;
	if (Class)
	{
		Class->ClassConstructor(Initializer);
	}
	else
	{
		new (EC_InternalUseOnlyConstructor, Initializer.Obj) UClass();
	}
	CurrentInitializer = Initializer.Parent;
	FObjectTable::Get().SetLayout(Initializer.Obj, Size, Alignment);
	return Initializer.Obj;
}

UObject* FObjectConstruction::Construct(const FStaticConstructObjectParameters& Params)
{
	FObjectInitializer Initializer;
	Initializer.Class = const_cast<UClass*>(Params.Class);
	Initializer.Outer = Params.Outer;
	Initializer.Name = Params.Name;
	Initializer.Flags = Params.SetFlags;
	if (Initializer.Class->HasAnyClassFlags(CLASS_Intrinsic))
	{
		// Class objects and packages hold no reflected values; they come before there are default objects.
		return ConstructBare(Initializer);
	}
	if (!(Params.SetFlags & RF_ClassDefaultObject))
	{
		// A class default object is the first of its class, so that all others can begin as it is.
		Initializer.Class->GetDefaultObject();
	}
	UObject* const Object = ConstructBare(Initializer);
	if (!Object->IsTemplate())
	{
		CopyTemplate(Initializer, Params.Template ? Params.Template : Object->GetArchetype());
	}
	for (UObject* Subobject : Initializer.DefaultSubobjects)
	{
		Subobject->PostInitProperties();
	}
	Object->PostInitProperties();
	return Object;
}

UObject* FObjectConstruction::ConstructSubobject(UObject* Owner, FName Name, UClass* Class, EObjectFlags ExtraFlags)
{
	Class->GetDefaultObject();
	FObjectInitializer Initializer;
	Initializer.Class = Class;
	Initializer.Outer = Owner;
	Initializer.Name = Name;
	Initializer.Flags = (Owner->GetFlags() & RF_PropagateToSubObjects) | RF_DefaultSubObject | ExtraFlags;
	UObject* const Object = ConstructBare(Initializer);
	TArray<UObject*>& Made = CurrentInitializer->DefaultSubobjects;
	Made.Append(Initializer.DefaultSubobjects);
	Made.Add(Object);
	return Object;
}

void FObjectConstruction::CopyTemplate(const FObjectInitializer& Initializer, UObject* Template)
{
	UObject* const Object = Initializer.Obj;
	CopyValues(Object, Template, Object, Template);
	for (UObject* Subobject : Initializer.DefaultSubobjects)
	{
		if (UObject* const Counterpart = FindCounterpart(Subobject, Object, Template))
		{
			CopyValues(Subobject, Counterpart, Object, Template);
		}
	}
}

UClass* FObjectConstruction::ConstructRawClass(const ANSICHAR* Name)
{
	FObjectInitializer Initializer;
	Initializer.Name = FName(Name);
	Initializer.Flags = RF_Public;
	return static_cast<UClass*>(ConstructBare(Initializer));
}

void FObjectConstruction::CompleteRawClass(UClass* Raw, UClass* ItsClass, UObject* Outer)
{
	Raw->ClassPrivate = ItsClass;
	Raw->LowLevelRename(Raw->NamePrivate, Outer);
}
