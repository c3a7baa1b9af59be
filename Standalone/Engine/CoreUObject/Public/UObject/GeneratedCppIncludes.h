// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <initializer_list>
#include <new>

/** @file What the sources that HeaderTool writes are made of. Nothing else includes it. */

#define STRUCT_OFFSET(struc, member) __builtin_offsetof(struc, member)

namespace UE4CodeGen_Private
{
	struct FMetaDataPairParam
	{
		const ANSICHAR* Name;
		const TCHAR* Value;
	};

	/** What a class's generated source knows of it. */
	struct FClassParams
	{
		/** Without the prefix letter. */
		const ANSICHAR* Name;
		const TCHAR* Package;
		SIZE_T Size;
		SIZE_T Alignment;
		EClassFlags Flags;
		UClass* (*SuperFunc)();
		UClass::ClassConstructorType Constructor;
		UClass::ClassAddReferencedObjectsType AddReferencedObjects;
		void (*AddProperties)(UStruct&);
	};

	/** What a structure's generated source knows of it. */
	struct FStructParams
	{
		const ANSICHAR* Name;
		const TCHAR* Package;
		SIZE_T Size;
		SIZE_T Alignment;
		UScriptStruct* (*SuperFunc)();
		void (*AddProperties)(UStruct&);
	};

	/** One property's declaration. */
	struct FPropertyParams
	{
		const ANSICHAR* Name;
		SIZE_T Offset;
		EPropertyFlags Flags;
		/** Of the pointer, or of the array's pointers; null for other types. */
		UClass* (*ClassFunc)();
	};

	/** Makes the class on the first call. Singleton is where the class is kept, null again after StaticExit. */
	COREUOBJECT_API UClass* ConstructUClass(
		UClass*& Singleton, const FClassParams& Params, std::initializer_list<FMetaDataPairParam> MetaData);
	/** The same for a structure; Ops must come from MakeStructOps. */
	COREUOBJECT_API UScriptStruct* ConstructUScriptStruct(UScriptStruct*& Singleton, const FStructParams& Params,
		TUniquePtr<UScriptStruct::ICppStructOps> Ops, std::initializer_list<FMetaDataPairParam> MetaData);
	/** Makes the classes and structures of a module known, then the class default objects. */
	COREUOBJECT_API void RegisterModule(
		std::initializer_list<UClass* (*)()> ClassFuncs, std::initializer_list<UScriptStruct* (*)()> StructFuncs);
	/** Puts a property into its structure. */
	COREUOBJECT_API void FinishProperty(UStruct& Struct, FProperty* Property, const FPropertyParams& Params,
		std::initializer_list<FMetaDataPairParam> MetaData);

	template <typename T>
	struct TStructOps : public UScriptStruct::ICppStructOps
	{
		virtual void Construct(void* Dest) const override { new (Dest) T(); }
		virtual void Destruct(void* Dest) const override { static_cast<T*>(Dest)->~T(); }
		virtual void Copy(void* Dest, const void* Src) const override
		{
			*static_cast<T*>(Dest) = *static_cast<const T*>(Src);
		}
	};

	template <typename T>
	TUniquePtr<UScriptStruct::ICppStructOps> MakeStructOps()
	{
		return TUniquePtr<UScriptStruct::ICppStructOps>(new TStructOps<T>());
	}

	/** An array of Ts. */
	template <typename T>
	class TArrayProperty : public FArrayProperty
	{
	public:
		TArrayProperty(FName InName, FProperty* InInner) : FArrayProperty(InName, InInner, sizeof(TArray<T>)) {}

		virtual void CopyCompleteValue(void* Dest, const void* Src) const override
		{
			Get(Dest) = Get(const_cast<void*>(Src));
		}
		virtual void InitializeValue(void* Dest) const override { new (Dest) TArray<T>(); }
		virtual void DestroyValue(void* Dest) const override { Get(Dest).~TArray<T>(); }

	private:
		static TArray<T>& Get(void* Array) { return *static_cast<TArray<T>*>(Array); }
		virtual int32 GetArrayNum(const void* Array) const override { return Get(const_cast<void*>(Array)).Num(); }
		virtual void* GetArrayData(void* Array) const override { return Get(Array).GetData(); }
		virtual void SetArrayNum(void* Array, int32 Num) const override { Get(Array).SetNum(Num); }
	};

	/** Makes the property for a C++ type: here a structure's; a type that is not reflected fails to compile. */
	template <typename T>
	struct TMakeProperty
	{
		static FProperty* Make(FName Name, const FPropertyParams&)
		{
			return new FStructProperty(Name, TBaseStructure<T>::Get());
		}
	};

	template <typename PropertyType>
	struct TMakeValueProperty
	{
		static FProperty* Make(FName Name, const FPropertyParams&) { return new PropertyType(Name); }
	};
	template <>
	struct TMakeProperty<bool> : public TMakeValueProperty<FBoolProperty>
	{};
	template <>
	struct TMakeProperty<int32> : public TMakeValueProperty<FIntProperty>
	{};
	template <>
	struct TMakeProperty<float> : public TMakeValueProperty<FFloatProperty>
	{};
	template <>
	struct TMakeProperty<FString> : public TMakeValueProperty<FStrProperty>
	{};
	template <>
	struct TMakeProperty<FName> : public TMakeValueProperty<FNameProperty>
	{};
	template <>
	struct TMakeProperty<FText> : public TMakeValueProperty<FTextProperty>
	{};
	template <typename T>
	struct TMakeProperty<T*>
	{
		static FProperty* Make(FName Name, const FPropertyParams& Params)
		{
			return new FObjectProperty(Name, Params.ClassFunc());
		}
	};
	template <typename T>
	struct TMakeProperty<TArray<T>>
	{
		static FProperty* Make(FName Name, const FPropertyParams& Params)
		{
			return new TArrayProperty<T>(Name, TMakeProperty<T>::Make(Name, Params));
		}
	};

	/** Adds the property for a member of type T. */
	template <typename T>
	void AddProperty(UStruct& Struct, const FPropertyParams& Params, std::initializer_list<FMetaDataPairParam> MetaData)
	{
		FinishProperty(Struct, TMakeProperty<T>::Make(FName(Params.Name), Params), Params, MetaData);
	}
}
