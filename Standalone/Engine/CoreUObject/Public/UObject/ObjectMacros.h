// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

/** @file Flags of objects, classes and properties, and the macros that reflected types are declared with. */

class UClass;
class UObject;
class UPackage;

/** Flags of an object. */
enum EObjectFlags : uint32
{
	RF_NoFlags = 0,
	/** May be referenced from other packages. */
	RF_Public = 1u << 0,
	/** Kept by the collector although nothing refers to it: an asset, a world. */
	RF_Standalone = 1u << 1,
	/** Its changes can be undone. */
	RF_Transactional = 1u << 3,
	/** The object that a class's new objects begin as. */
	RF_ClassDefaultObject = 1u << 4,
	/** A template of other objects: a class default object or a part of one. */
	RF_ArchetypeObject = 1u << 5,
	/** Never saved, so it never makes its package dirty. */
	RF_Transient = 1u << 6,
	/** Made by its owner's constructor. */
	RF_DefaultSubObject = 1u << 18,
};
ENUM_CLASS_FLAGS(EObjectFlags)

/** What CollectGarbage keeps by default. */
#define GARBAGE_COLLECTION_KEEPFLAGS RF_Standalone

/** What subobjects take over from the object that makes them. */
#define RF_PropagateToSubObjects (RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient)

/** Flags of a class. */
enum EClassFlags : uint32
{
	CLASS_None = 0,
	/** Has no instances of its own, only those of derived classes. */
	CLASS_Abstract = 1u << 0,
	/** Declared in C++. */
	CLASS_Native = 1u << 7,
	/** Declared in C++ without HeaderTool. */
	CLASS_Intrinsic = 1u << 28,
	/** A reference to an object of this class owns it: each owner has its own instance. */
	CLASS_DefaultToInstanced = 1u << 21,
	/** What derived classes take over. */
	CLASS_Inherit = CLASS_DefaultToInstanced,
};
ENUM_CLASS_FLAGS(EClassFlags)

/** Flags of a reflected property. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	/** Shown in details panels. */
	CPF_Edit = 1ull << 0,
	CPF_BlueprintVisible = 1ull << 2,
	/** The referenced object belongs to the owner and is written with it. */
	CPF_ExportObject = 1ull << 3,
	CPF_BlueprintReadOnly = 1ull << 4,
	/** Never saved. */
	CPF_Transient = 1ull << 13,
	/** Shown in details panels, but not changed there. */
	CPF_EditConst = 1ull << 17,
	/** Each owner refers to an instance of its own. */
	CPF_InstancedReference = 1ull << 19,
	/** May be animated. */
	CPF_Interp = 1ull << 33,
	CPF_PersistentInstance = 1ull << 41,
	/** Shown in the folded part of its category. */
	CPF_AdvancedDisplay = 1ull << 46,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

/** Kinds of properties, for CastField. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0,
	CASTCLASS_FIntProperty = 1ull << 3,
	CASTCLASS_FFloatProperty = 1ull << 8,
	CASTCLASS_FNameProperty = 1ull << 11,
	CASTCLASS_FStrProperty = 1ull << 13,
	CASTCLASS_FProperty = 1ull << 14,
	CASTCLASS_FObjectProperty = 1ull << 16,
	CASTCLASS_FBoolProperty = 1ull << 17,
	CASTCLASS_FStructProperty = 1ull << 20,
	CASTCLASS_FArrayProperty = 1ull << 21,
	CASTCLASS_FTextProperty = 1ull << 30,
};
ENUM_CLASS_FLAGS(EClassCastFlags)

/** Tells the constructors and operators that only the object system may use from the others. */
enum EInternal
{
	EC_InternalUseOnlyConstructor
};

/** As the outer of a search: look into every package. An aligned address that no object has. */
#define ANY_PACKAGE (reinterpret_cast<UObject*>(~static_cast<SIZE_T>(15)))

#ifndef NO_API
/** Of a class that its module does not export. */
#define NO_API
#endif

// HeaderTool reads these; the compiler sees nothing but the body that the generated header defines for the file and
// line.
#define UCLASS(...)
#define USTRUCT(...)
#define UPROPERTY(...)
#define UFUNCTION(...)

#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)

#define COMPILED_IN_FLAGS(TStaticFlags) ((TStaticFlags) | CLASS_Native)

/** What every class of objects has in common. The generated headers use it, and the few classes that reflection rests
 * on. */
#define DECLARE_CLASS(TClass, TSuperClass, TStaticFlags, TStaticCastFlags, TPackage, TRequiredAPI) \
private: \
	static TRequiredAPI UClass* GetPrivateStaticClass(); \
\
public: \
	enum : uint32 \
	{ \
		StaticClassFlags = TStaticFlags \
	}; \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	/** The class object, made at the first call. */ \
	static UClass* StaticClass() \
	{ \
		return GetPrivateStaticClass(); \
	} \
	static const TCHAR* StaticPackage() \
	{ \
		return TPackage; \
	}
