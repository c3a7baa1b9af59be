// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Map.h"
#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Templates/UniquePtr.h"
#include "UObject/Field.h"
#include "UObject/Object.h"

class FProperty;

/** The base of what reflection knows by name and keeps metadata of. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_CLASS(
		UField, UObject, CLASS_Abstract | CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	bool HasMetaData(const TCHAR* Key) const { return HasMetaData(FName(Key)); }
	bool HasMetaData(const FName& Key) const { return MetaData.Contains(Key); }
	/** The value of the key, empty if there is none. */
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	void SetMetaData(const FName& Key, const FString& Value) { MetaData.Add(Key, Value); }

private:
	TMap<FName, FString> MetaData;
};

/** A reflected structure or class: its size, its super and its properties. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_CLASS(
		UStruct, UField, CLASS_Abstract | CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	virtual ~UStruct();

	UStruct* GetSuperStruct() const { return SuperStruct; }
	/** Whether this is SomeBase or derived from it. One comparison, however deep. */
	bool IsChildOf(const UStruct* SomeBase) const
	{
		return SomeBase && SomeBase->Depth <= Depth && BaseChain.GetData()[SomeBase->Depth] == SomeBase;
	}
	template <class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}
	/** The property of this or of a super structure, or null. */
	FProperty* FindPropertyByName(FName InName) const;
	int32 GetStructureSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }

	/** Set once, before there are properties. */
	void SetSuperStruct(UStruct* NewSuperStruct);
	void SetLayout(SIZE_T Size, SIZE_T Alignment)
	{
		PropertiesSize = static_cast<int32>(Size);
		MinAlignment = static_cast<int32>(Alignment);
	}
	/** Appends a property and owns it from now on. */
	void AddProperty(FProperty* Property);

	/** The first own property; the others follow by Next, in the order of declaration. */
	FField* ChildProperties = nullptr;

	/** Shows the collector all references that the reflected properties of an instance hold. */
	void CollectReferences(void* Instance, FReferenceCollector& Collector, const UObject* Referencer) const;

private:
	UStruct* SuperStruct = nullptr;
	FField* LastProperty = nullptr;
	/** All supers from the root to this one. */
	TArray<const UStruct*> BaseChain;
	int32 Depth = 0;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
	/** The own properties in which references can be. */
	TArray<const FProperty*> ReferenceProperties;
};

/** A reflected structure. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_CLASS(UScriptStruct, UStruct, CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	/** What only the compiler knows of a structure. */
	struct ICppStructOps
	{
		virtual ~ICppStructOps() = default;
		virtual void Construct(void* Dest) const = 0;
		virtual void Destruct(void* Dest) const = 0;
		virtual void Copy(void* Dest, const void* Src) const = 0;
	};

	/** Assigns all members, reflected or not. */
	void CopyScriptStruct(void* Dest, const void* Src) const { CppStructOps->Copy(Dest, Src); }
	/** Whether all reflected members are identical. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;

	/** What constructs, destroys and copies values of the structure. */
	const ICppStructOps* GetCppStructOps() const { return CppStructOps.Get(); }
	void SetCppStructOps(TUniquePtr<ICppStructOps> InOps) { CppStructOps = MoveTemp(InOps); }

private:
	TUniquePtr<ICppStructOps> CppStructOps;
};

/** A class of objects. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_CLASS(UClass, UStruct, CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	/** Constructs the object in the initializer's memory. */
	typedef void (*ClassConstructorType)(const FObjectInitializer&);
	typedef void (*ClassAddReferencedObjectsType)(UObject*, FReferenceCollector&);

	UClass* GetSuperClass() const { return static_cast<UClass*>(GetSuperStruct()); }
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }
	/** The object that holds the class's default values; made at the first call, after that of the super class. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template <class T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	EClassFlags ClassFlags = CLASS_None;
	ClassConstructorType ClassConstructor = nullptr;
	ClassAddReferencedObjectsType ClassAddReferencedObjects = nullptr;
	UObject* ClassDefaultObject = nullptr;
};

/** The class default object of T. */
template <class T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template <class T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}

/** The reflected structure of a C++ structure. */
template <typename T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return T::StaticStruct(); }
};

template <>
struct TBaseStructure<FVector>
{
	static COREUOBJECT_API UScriptStruct* Get();
};

template <>
struct TBaseStructure<FRotator>
{
	static COREUOBJECT_API UScriptStruct* Get();
};

template <>
struct TBaseStructure<FLinearColor>
{
	static COREUOBJECT_API UScriptStruct* Get();
};
