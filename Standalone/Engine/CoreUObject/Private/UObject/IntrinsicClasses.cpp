// Copyright Corvane. MIT License.
#include "IntrinsicClasses.h"

#include "ObjectConstruction.h"
#include "UObject/GeneratedCppIncludes.h"

namespace
{
	template <typename T>
	void Construct(const FObjectInitializer& Initializer)
	{
		new (EC_InternalUseOnlyConstructor, Initializer.GetObj()) T();
	}

	template <typename T>
	UClass* MakeRaw(const ANSICHAR* Name, UClass* Super)
	{
		UClass* const Result = FObjectConstruction::ConstructRawClass(Name);
		Result->SetSuperStruct(Super);
		Result->SetLayout(sizeof(T), alignof(T));
		Result->ClassFlags = static_cast<EClassFlags>(COMPILED_IN_FLAGS(T::StaticClassFlags));
		Result->ClassConstructor = &Construct<T>;
		Result->ClassAddReferencedObjects = &T::AddReferencedObjects;
		return Result;
	}

	void MakeFloats(UStruct& Struct, std::initializer_list<UE4CodeGen_Private::FPropertyParams> Members)
	{
		for (const UE4CodeGen_Private::FPropertyParams& Params : Members)
		{
			UE4CodeGen_Private::AddProperty<float>(Struct, Params, {});
		}
	}

	/** FVector and its like belong to Core, which knows no reflection. */
	template <typename T>
	UScriptStruct* GetCoreStruct(UScriptStruct*& Singleton, const ANSICHAR* Name, void (*AddProperties)(UStruct&))
	{
		return UE4CodeGen_Private::ConstructUScriptStruct(Singleton,
			{Name, TEXT("/Script/CoreUObject"), sizeof(T), alignof(T), nullptr, AddProperties},
			UE4CodeGen_Private::MakeStructOps<T>(), {});
	}

	UScriptStruct* VectorStruct = nullptr;
	UScriptStruct* RotatorStruct = nullptr;
	UScriptStruct* LinearColorStruct = nullptr;
}

FIntrinsicClasses& FIntrinsicClasses::Get()
{
	// Never destroyed, as the objects are not.
	static FIntrinsicClasses* const Classes = new FIntrinsicClasses();
	if (!Classes->Object)
	{
		Classes->Make();
	}
	return *Classes;
}

void FIntrinsicClasses::Make()
{
	Object = MakeRaw<UObject>("Object", nullptr);
	Field = MakeRaw<UField>("Field", Object);
	Struct = MakeRaw<UStruct>("Struct", Field);
	ScriptStruct = MakeRaw<UScriptStruct>("ScriptStruct", Struct);
	Class = MakeRaw<UClass>("Class", Struct);
	Package = MakeRaw<UPackage>("Package", Object);
	for (UClass* Raw : {Object, Field, Struct, ScriptStruct, Class, Package})
	{
		FObjectConstruction::CompleteRawClass(Raw, Class, nullptr);
		AddClass(Raw, nullptr);
	}
	UPackage* const ScriptPackage = CreatePackage(UObject::StaticPackage());
	for (UClass* Raw : {Object, Field, Struct, ScriptStruct, Class, Package})
	{
		FObjectConstruction::CompleteRawClass(Raw, Class, ScriptPackage);
	}
}

void FIntrinsicClasses::AddClass(UClass* InClass, UClass** Singleton)
{
	InClass->AddToRoot();
	AllClasses.push_back(InClass);
	if (Singleton)
	{
		ClassSingletons.push_back(Singleton);
	}
}

void FIntrinsicClasses::AddStruct(UScriptStruct** Singleton)
{
	(*Singleton)->AddToRoot();
	StructSingletons.push_back(Singleton);
}

void FIntrinsicClasses::Reset()
{
	for (UClass** Singleton : ClassSingletons)
	{
		*Singleton = nullptr;
	}
	for (UScriptStruct** Singleton : StructSingletons)
	{
		*Singleton = nullptr;
	}
	*this = FIntrinsicClasses();
}

UClass* UObject::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().Object;
}

UClass* UField::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().Field;
}

UClass* UStruct::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().Struct;
}

UClass* UScriptStruct::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().ScriptStruct;
}

UClass* UClass::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().Class;
}

UClass* UPackage::GetPrivateStaticClass()
{
	return FIntrinsicClasses::Get().Package;
}

// Generated sources refer to a class by these functions, since they may know no more of it than its name.
COREUOBJECT_API UClass* Z_Construct_UClass_UObject_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UClass_NoRegister();
COREUOBJECT_API UClass* Z_Construct_UClass_UPackage_NoRegister();

UClass* Z_Construct_UClass_UObject_NoRegister()
{
	return UObject::StaticClass();
}

UClass* Z_Construct_UClass_UClass_NoRegister()
{
	return UClass::StaticClass();
}

UClass* Z_Construct_UClass_UPackage_NoRegister()
{
	return UPackage::StaticClass();
}

UScriptStruct* TBaseStructure<FVector>::Get()
{
	return GetCoreStruct<FVector>(VectorStruct, "Vector",
		[](UStruct& Struct)
		{
			MakeFloats(Struct,
				{{"X", STRUCT_OFFSET(FVector, X), CPF_Edit, nullptr},
					{"Y", STRUCT_OFFSET(FVector, Y), CPF_Edit, nullptr},
					{"Z", STRUCT_OFFSET(FVector, Z), CPF_Edit, nullptr}});
		});
}

UScriptStruct* TBaseStructure<FRotator>::Get()
{
	return GetCoreStruct<FRotator>(RotatorStruct, "Rotator",
		[](UStruct& Struct)
		{
			MakeFloats(Struct,
				{{"Pitch", STRUCT_OFFSET(FRotator, Pitch), CPF_Edit, nullptr},
					{"Yaw", STRUCT_OFFSET(FRotator, Yaw), CPF_Edit, nullptr},
					{"Roll", STRUCT_OFFSET(FRotator, Roll), CPF_Edit, nullptr}});
		});
}

UScriptStruct* TBaseStructure<FLinearColor>::Get()
{
	return GetCoreStruct<FLinearColor>(LinearColorStruct, "LinearColor",
		[](UStruct& Struct)
		{
			MakeFloats(Struct,
				{{"R", STRUCT_OFFSET(FLinearColor, R), CPF_Edit, nullptr},
					{"G", STRUCT_OFFSET(FLinearColor, G), CPF_Edit, nullptr},
					{"B", STRUCT_OFFSET(FLinearColor, B), CPF_Edit, nullptr},
					{"A", STRUCT_OFFSET(FLinearColor, A), CPF_Edit, nullptr}});
		});
}
