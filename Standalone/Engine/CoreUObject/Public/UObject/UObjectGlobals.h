// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class FProperty;
class ITransaction;
class UObject;
struct FPropertyChangedEvent;

/** @file Making, finding and collecting objects. All of it belongs to the game thread. */

/** The step of the undo history that is being recorded, or null. Only the history sets it. */
extern COREUOBJECT_API ITransaction* GUndo;

/** What happens to objects, whoever does it. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectModified, UObject*)
		DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, FPropertyChangedEvent&)

		/** An object is about to change. */
		static FOnObjectModified OnObjectModified;

	/** A property of an object has changed; which one is unknown after undo. */
	static FOnObjectPropertyChanged OnObjectPropertyChanged;
};

/** What a new object is made from. */
struct FStaticConstructObjectParameters
{
	explicit FStaticConstructObjectParameters(const UClass* InClass) : Class(InClass) {}

	const UClass* Class;
	UObject* Outer = nullptr;
	/** None: a free name is made from the class's. */
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	/** Whose values the object begins with; null for those of its archetype. */
	UObject* Template = nullptr;
};

/**
 * Makes an object: zeroed memory, constructor, the template's values of all reflected properties, PostInitProperties.
 * Fatal for an abstract class, for an outer that is null (except of a package) and for a name that is taken.
 */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

/** The package of objects that are never saved. */
COREUOBJECT_API UPackage* GetTransientPackage();

/** Fatal within a constructor: there the parts of an object are made with CreateDefaultSubobject. */
COREUOBJECT_API void CheckNotInConstructor(const FName& Name);

/** Makes an object of class T or of a class derived from it. */
template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = FName(), EObjectFlags Flags = RF_NoFlags,
	UObject* Template = nullptr)
{
	CheckNotInConstructor(Name);
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template);
}

template <class T>
T* NewObject(UObject* Outer)
{
	return NewObject<T>(Outer, T::StaticClass());
}

template <class T>
T* NewObject()
{
	return NewObject<T>(reinterpret_cast<UObject*>(GetTransientPackage()), T::StaticClass());
}

/**
 * Finds an object. Outer null: Name is a whole path, "/Game/Package.Object:Part". Outer ANY_PACKAGE: Name is a whole
 * path, or the object's own name in whatever package. Else Name is relative to Outer. Letter case does not matter.
 * @return null unless the object is of the class (of exactly that class, if asked).
 */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);

template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, ExactClass));
}

/** The package of that name, or null. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);

/** The package of that name, made if there is none. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);

/** A name that no object within Parent has: BaseName (by default the class's name), "_" and a number that was never
 * used. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName BaseName = FName());

/**
 * Destroys the objects that cannot be reached from the root set, from objects with one of KeepFlags, from templates,
 * from native holders (FGCObject) and through reflected references. References to objects that are pending kill become
 * null.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags);

/** Destroys every object, classes included: the end of the program. The object system could be started again. */
COREUOBJECT_API void StaticExit();

/** Receives an object's references, one after the other. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	/** Object may become null, when what it points at is pending kill. */
	template <class UObjectType>
	void AddReferencedObject(UObjectType*& Object, const UObject* ReferencingObject = nullptr,
		const FProperty* ReferencingProperty = nullptr)
	{
		UObject* Base = Object;
		HandleObjectReference(Base, ReferencingObject, ReferencingProperty);
		Object = static_cast<UObjectType*>(Base);
	}
	template <class UObjectType>
	void AddReferencedObjects(TArray<UObjectType*>& ObjectArray, const UObject* ReferencingObject = nullptr,
		const FProperty* ReferencingProperty = nullptr)
	{
		for (UObjectType*& Object : ObjectArray)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}

protected:
	virtual void HandleObjectReference(
		UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) = 0;
};

/** The making of one object, from its allocation until it has its template's values. */
class COREUOBJECT_API FObjectInitializer
{
public:
	UObject* GetObj() const { return Obj; }

private:
	friend class FObjectConstruction;
	friend class UObject;

	UObject* Obj = nullptr;
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	/** The object whose constructor makes this one, or null. */
	FObjectInitializer* Parent = nullptr;
	/** What the constructor made, inner parts before those that made them. Kept by the outermost one for all. */
	TArray<UObject*> DefaultSubobjects;
};
