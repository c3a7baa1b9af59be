// Copyright Corvane. MIT License.
#include "UObject/GeneratedCppIncludes.h"

#include "IntrinsicClasses.h"

namespace UE4CodeGen_Private
{
	namespace
	{
		void SetMetaData(UField& Field, std::initializer_list<FMetaDataPairParam> MetaData)
		{
			for (const FMetaDataPairParam& Pair : MetaData)
			{
				Field.SetMetaData(FName(Pair.Name), FString(Pair.Value));
			}
		}

		template <typename T>
		T* MakeType(const ANSICHAR* Name, const TCHAR* Package)
		{
			FStaticConstructObjectParameters Params(T::StaticClass());
			Params.Outer = CreatePackage(Package);
			Params.Name = FName(Name);
			Params.SetFlags = RF_Public;
			return static_cast<T*>(StaticConstructObject_Internal(Params));
		}
	}

	UClass* ConstructUClass(
		UClass*& Singleton, const FClassParams& Params, std::initializer_list<FMetaDataPairParam> MetaData)
	{
		if (Singleton)
		{
			return Singleton;
		}
		UClass* const Super = Params.SuperFunc();
		if (Singleton)
		{
			// The super class refers to this one in a property, which has made it by now.
			return Singleton;
		}
		UClass* const Class = MakeType<UClass>(Params.Name, Params.Package);
		Class->SetSuperStruct(Super);
		Class->SetLayout(Params.Size, Params.Alignment);
		Class->ClassFlags = Params.Flags | (Super->ClassFlags & CLASS_Inherit);
		Class->ClassConstructor = Params.Constructor;
		Class->ClassAddReferencedObjects = Params.AddReferencedObjects;
		// Known before its properties are made, since they may refer to the class itself.
		Singleton = Class;
		FIntrinsicClasses::Get().AddClass(Class, &Singleton);
		SetMetaData(*Class, MetaData);
		Params.AddProperties(*Class);
		return Class;
	}

	UScriptStruct* ConstructUScriptStruct(UScriptStruct*& Singleton, const FStructParams& Params,
		TUniquePtr<UScriptStruct::ICppStructOps> Ops, std::initializer_list<FMetaDataPairParam> MetaData)
	{
		if (Singleton)
		{
			return Singleton;
		}
		UScriptStruct* const Super = Params.SuperFunc ? Params.SuperFunc() : nullptr;
		UScriptStruct* const Struct = MakeType<UScriptStruct>(Params.Name, Params.Package);
		Struct->SetSuperStruct(Super);
		Struct->SetLayout(Params.Size, Params.Alignment);
		Struct->SetCppStructOps(MoveTemp(Ops));
		Singleton = Struct;
		FIntrinsicClasses::Get().AddStruct(&Singleton);
		SetMetaData(*Struct, MetaData);
		Params.AddProperties(*Struct);
		return Struct;
	}

	void RegisterModule(
		std::initializer_list<UClass* (*)()> ClassFuncs, std::initializer_list<UScriptStruct* (*)()> StructFuncs)
	{
		for (UScriptStruct* (*StructFunc)() : StructFuncs)
		{
			StructFunc();
		}
		for (UClass* (*ClassFunc)() : ClassFuncs)
		{
			ClassFunc();
		}
		for (UClass* (*ClassFunc)() : ClassFuncs)
		{
			ClassFunc()->GetDefaultObject();
		}
	}

	void FinishProperty(UStruct& Struct, FProperty* Property, const FPropertyParams& Params,
		std::initializer_list<FMetaDataPairParam> MetaData)
	{
		for (const FMetaDataPairParam& Pair : MetaData)
		{
			Property->SetMetaData(FName(Pair.Name), FString(Pair.Value));
		}
		Property->SetPlace(Params.Offset, Params.Flags);
		Struct.AddProperty(Property);
	}
}
