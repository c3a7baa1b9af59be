// Copyright Corvane. MIT License.
#pragma once

#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

class FProperty;
class UWorld;

/**
 * The base of all reflected objects. Objects are made with NewObject or, in constructors, CreateDefaultSubobject, and
 * are owned by the collector. The outer of an object is what it lies in; the outermost is its package.
 */
class COREUOBJECT_API UObject
{
	DECLARE_CLASS(
		UObject, UObject, CLASS_Abstract | CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	UObject();
	virtual ~UObject();
	UObject(const UObject&) = delete;
	UObject& operator=(const UObject&) = delete;

	UClass* GetClass() const { return ClassPrivate; }
	FName GetFName() const { return NamePrivate; }
	/** The object's own name, without its outers. */
	FString GetName() const { return NamePrivate.ToString(); }
	/** "/Game/Package.Object:Part.Part": where the object lies, up to but not including StopOuter. */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	UObject* GetOuter() const { return OuterPrivate; }
	UPackage* GetOutermost() const;
	/** Whether SomeOuter is among the outers. */
	bool IsIn(const UObject* SomeOuter) const;
	/** The nearest outer of that class, or null. */
	UObject* GetTypedOuter(UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}

	/** Whether this is an object of the class or of one derived from it. */
	bool IsA(const UClass* SomeBase) const;
	template <class T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	EObjectFlags GetFlags() const { return ObjectFlags; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != 0; }
	void SetFlags(EObjectFlags NewFlags) { ObjectFlags = ObjectFlags | NewFlags; }
	void ClearFlags(EObjectFlags FlagsToClear)
	{
		ObjectFlags = static_cast<EObjectFlags>(ObjectFlags & ~static_cast<uint32>(FlagsToClear));
	}
	/** Whether this is a class default object or a part of one. TemplateTypes tells which of the two count. */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;

	/** Kept by the collector until RemoveFromRoot. */
	void AddToRoot() { bRootSet = true; }
	void RemoveFromRoot() { bRootSet = false; }
	bool IsRooted() const { return bRootSet; }
	/** Destroyed as far as anyone is concerned: weak pointers are empty, and the next collection clears all references.
	 */
	bool IsPendingKill() const { return bPendingKill; }
	/** Fatal for an object of the root set. */
	void MarkPendingKill();

	/**
	 * The object that this one began as: the part of the same name in the outer's archetype, else the class default
	 * object; for a class default object that of the super class.
	 */
	UObject* GetArchetype() const;

	/** Flags the package as changed. False if that can't be: of templates and of what is never saved. */
	bool MarkPackageDirty() const;

	/**
	 * To be called before the object changes. While a step of the undo history is recorded, a transactional object is
	 * saved into it, and the package is dirty only once the step ends with a change; else the package is dirty at once,
	 * unless bAlwaysMarkDirty is false.
	 * @return whether the object was saved.
	 */
	virtual bool Modify(bool bAlwaysMarkDirty = true);

	/** Somebody is about to change the property (null: any of them). Modifies the object. */
	virtual void PreEditChange(FProperty* PropertyAboutToChange);

	/** Somebody has changed a property. Tells FCoreUObjectDelegates. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);

	/** Undo or redo has changed the object. Passes for a change of an unknown property. */
	virtual void PostEditUndo();

	/** The world that the object is in, or null. */
	virtual UWorld* GetWorld() const;

	/** The object and its parts have the values of their templates. */
	virtual void PostInitProperties() {}
	/** The object's values were read from a file. Its parts may still have to hear of it. */
	virtual void PostLoad() {}

	/** The collector destroys the object next. The objects that die together are all still there. */
	virtual void BeginDestroy() {}

	/** For references that are not reflected: a class may define its own, which is called for each of its objects. */
	static void AddReferencedObjects(UObject*, FReferenceCollector&) {}

	/**
	 * Makes a part of the object that is being constructed. Of an instance, the part's archetype is the part of the
	 * same name of the class default object. Fatal outside of constructors.
	 */
	UObject* CreateDefaultSubobject(FName SubobjectFName, UClass* ClassToCreate, bool bIsTransient = false);
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, TReturnType::StaticClass(), bTransient));
	}
	template <class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(
			CreateDefaultSubobject(SubobjectName, TClassToConstructByDefault::StaticClass(), bTransient));
	}

	/** The place in the table of objects; used again by later objects. */
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }

	/** Objects are constructed in memory of the object system only. */
	void* operator new(SIZE_T, EInternal, void* Memory) { return Memory; }
	void operator delete(void*, EInternal, void*) {}
	/** Never called: the collector frees the memory after the destructor. */
	void operator delete(void*) {}

private:
	friend class FObjectConstruction;
	friend class FObjectTable;

	void LowLevelRename(FName NewName, UObject* NewOuter);

	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	FName NamePrivate;
	UObject* OuterPrivate;
	bool bRootSet = false;
	bool bPendingKill = false;
};

/** Not null and not pending kill. */
inline bool IsValid(const UObject* Test)
{
	return Test && !Test->IsPendingKill();
}
