// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/Class.h"
#include "UObject/Field.h"
#include "UObject/Object.h"

#include <new>

/** @file Reflected properties: what details panels, undo, save slots, level files and the collector know of an object's
 * members. */

/** Why a value changed. */
namespace EPropertyChangeType
{
	typedef uint32 Type;

	enum : uint32
	{
		Unspecified = 1u << 0,
		ArrayAdd = 1u << 1,
		ArrayRemove = 1u << 2,
		ArrayClear = 1u << 3,
		ValueSet = 1u << 4,
	};
}

/** Which property of an object has changed, and how. */
struct FPropertyChangedEvent
{
	FPropertyChangedEvent(
		FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty), MemberProperty(InProperty), ChangeType(InChangeType)
	{}

	/** The innermost property that has changed; null if it is not known. */
	FProperty* Property;
	/** The object's own property that Property is or lies in. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
};

/** One reflected member. Value pointers point at the member itself, container pointers at the object or structure. */
class COREUOBJECT_API FProperty : public FField
{
public:
	enum : uint64
	{
		StaticClassCastFlags = CASTCLASS_FProperty
	};

	FProperty(FName InName, EClassCastFlags InCastFlags, SIZE_T Size)
		: FField(InName, InCastFlags | CASTCLASS_FProperty), ElementSize(static_cast<int32>(Size))
	{}

	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }
	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<ValueType*>(static_cast<uint8*>(ContainerPtr) + Offset + ElementSize * ArrayIndex);
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<ValueType>(const_cast<void*>(ContainerPtr), ArrayIndex);
	}

	/** Makes a default value in raw memory of ElementSize bytes, which DestroyValue must end. */
	virtual void InitializeValue(void* Dest) const = 0;
	virtual void DestroyValue(void* Dest) const = 0;
	virtual void CopyCompleteValue(void* Dest, const void* Src) const = 0;
	void CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const
	{
		CopyCompleteValue(ContainerPtrToValuePtr<void>(DestContainer), ContainerPtrToValuePtr<void>(SrcContainer));
	}
	/** Whether two values are the same to the last bit that matters: strings and names with their letter case. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	bool Identical_InContainer(const void* A, const void* B, uint32 PortFlags = 0) const
	{
		return Identical(ContainerPtrToValuePtr<void>(A), ContainerPtrToValuePtr<void>(B), PortFlags);
	}

	/** Whether a value can hold references to objects. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Shows the collector the references of a value. */
	virtual void CollectReferences(void*, FReferenceCollector&, const UObject*) const {}

	EPropertyFlags PropertyFlags = CPF_None;
	/** The size of one value in bytes. */
	int32 ElementSize;

	/** Where the member is in its container, and the flags of its declaration. */
	void SetPlace(SIZE_T InOffset, EPropertyFlags InFlags)
	{
		Offset = static_cast<int32>(InOffset);
		PropertyFlags = PropertyFlags | InFlags;
	}

private:
	int32 Offset = 0;
};

/** A property whose values are of one C++ type. */
template <typename InTCppType, EClassCastFlags InCastFlag>
class TProperty : public FProperty
{
public:
	typedef InTCppType TCppType;
	enum : uint64
	{
		StaticClassCastFlags = InCastFlag
	};

	explicit TProperty(FName InName) : FProperty(InName, InCastFlag, sizeof(TCppType)) {}

	static const TCppType& GetPropertyValue(const void* A) { return *static_cast<const TCppType*>(A); }
	static void SetPropertyValue(void* A, const TCppType& Value) { *static_cast<TCppType*>(A) = Value; }
	const TCppType& GetPropertyValue_InContainer(const void* A) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(A));
	}
	virtual void InitializeValue(void* Dest) const override { new (Dest) TCppType(); }
	virtual void DestroyValue(void* Dest) const override { static_cast<TCppType*>(Dest)->~TCppType(); }
	virtual void CopyCompleteValue(void* Dest, const void* Src) const override
	{
		SetPropertyValue(Dest, GetPropertyValue(Src));
	}
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
};

/** Any value that == compares exactly. */
template <typename T>
bool IsIdenticalPropertyValue(const T& A, const T& B)
{
	return A == B;
}
COREUOBJECT_API bool IsIdenticalPropertyValue(const float& A, const float& B);
COREUOBJECT_API bool IsIdenticalPropertyValue(const FString& A, const FString& B);
COREUOBJECT_API bool IsIdenticalPropertyValue(const FName& A, const FName& B);
COREUOBJECT_API bool IsIdenticalPropertyValue(const FText& A, const FText& B);

template <typename InTCppType, EClassCastFlags InCastFlag>
bool TProperty<InTCppType, InCastFlag>::Identical(const void* A, const void* B, uint32) const
{
	return IsIdenticalPropertyValue(GetPropertyValue(A), GetPropertyValue(B));
}

class FBoolProperty : public TProperty<bool, CASTCLASS_FBoolProperty>
{
public:
	using TProperty::TProperty;
};

class FIntProperty : public TProperty<int32, CASTCLASS_FIntProperty>
{
public:
	using TProperty::TProperty;
};

class FFloatProperty : public TProperty<float, CASTCLASS_FFloatProperty>
{
public:
	using TProperty::TProperty;
};

class FStrProperty : public TProperty<FString, CASTCLASS_FStrProperty>
{
public:
	using TProperty::TProperty;
};

class FNameProperty : public TProperty<FName, CASTCLASS_FNameProperty>
{
public:
	using TProperty::TProperty;
};

class FTextProperty : public TProperty<FText, CASTCLASS_FTextProperty>
{
public:
	using TProperty::TProperty;
};

/** A pointer to an object. */
class COREUOBJECT_API FObjectProperty : public FProperty
{
public:
	enum : uint64
	{
		StaticClassCastFlags = CASTCLASS_FObjectProperty
	};

	FObjectProperty(FName InName, UClass* InPropertyClass);

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const;
	/** Value must be null or of the property's class. */
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress));
	}
	virtual void InitializeValue(void* Dest) const override { SetObjectPropertyValue(Dest, nullptr); }
	virtual void DestroyValue(void*) const override {}
	virtual void CopyCompleteValue(void* Dest, const void* Src) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void CollectReferences(
		void* Value, FReferenceCollector& Collector, const UObject* Referencer) const override;

	/** The class of the pointer's type. */
	UClass* PropertyClass;
};

/** A structure by value. */
class COREUOBJECT_API FStructProperty : public FProperty
{
public:
	enum : uint64
	{
		StaticClassCastFlags = CASTCLASS_FStructProperty
	};

	FStructProperty(FName InName, UScriptStruct* InStruct);

	virtual void InitializeValue(void* Dest) const override { Struct->GetCppStructOps()->Construct(Dest); }
	virtual void DestroyValue(void* Value) const override { Struct->GetCppStructOps()->Destruct(Value); }
	virtual void CopyCompleteValue(void* Dest, const void* Src) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	/** Asked while the structure may still be getting its properties, so the answer is the careful one. */
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void CollectReferences(
		void* Value, FReferenceCollector& Collector, const UObject* Referencer) const override;

	UScriptStruct* Struct;
};

/** A TArray. Its elements are reached through FScriptArrayHelper. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
public:
	enum : uint64
	{
		StaticClassCastFlags = CASTCLASS_FArrayProperty
	};

	/** Owns InInner, which describes the elements. */
	FArrayProperty(FName InName, FProperty* InInner, SIZE_T Size)
		: FProperty(InName, CASTCLASS_FArrayProperty, Size), Inner(InInner)
	{}
	virtual ~FArrayProperty();

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }
	virtual void CollectReferences(
		void* Value, FReferenceCollector& Collector, const UObject* Referencer) const override;

	FProperty* Inner;

private:
	friend class FScriptArrayHelper;

	/** What only the compiler knows of an array of these elements. */
	virtual int32 GetArrayNum(const void* Array) const = 0;
	virtual void* GetArrayData(void* Array) const = 0;
	virtual void SetArrayNum(void* Array, int32 Num) const = 0;
};

/** Reads and changes a reflected array without knowing the type of its elements. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	/** InArray points at the TArray itself. */
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
		: Property(InProperty), Array(const_cast<void*>(InArray))
	{}

	int32 Num() const { return Property->GetArrayNum(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	/** The element at Index; of an empty array the first one's pointer is null. Fatal for any other index out of range.
	 */
	uint8* GetRawPtr(int32 Index = 0);
	/** Appends a default-constructed element. @return its index. */
	int32 AddValue();
	void EmptyValues();
	/** Removes all elements and adds default-constructed ones. */
	void EmptyAndAddValues(int32 Count);

private:
	const FArrayProperty* Property;
	void* Array;
};

/** Walks through the properties of a structure: its own in the order of declaration, then those of its super, and so
 * on. */
template <class FieldType>
class TFieldIterator
{
public:
	explicit TFieldIterator(const UStruct* InStruct)
		: Struct(InStruct), Field(InStruct ? InStruct->ChildProperties : nullptr)
	{
		SkipToNext();
	}
	explicit operator bool() const { return Field != nullptr; }
	TFieldIterator& operator++()
	{
		Field = Field->Next;
		SkipToNext();
		return *this;
	}
	FieldType* operator*() const { return static_cast<FieldType*>(Field); }
	FieldType* operator->() const { return **this; }

private:
	void SkipToNext()
	{
		while (Struct && !CastField<FieldType>(Field))
		{
			if (Field)
			{
				Field = Field->Next;
				continue;
			}
			Struct = Struct->GetSuperStruct();
			Field = Struct ? Struct->ChildProperties : nullptr;
		}
	}

	const UStruct* Struct;
	FField* Field;
};
