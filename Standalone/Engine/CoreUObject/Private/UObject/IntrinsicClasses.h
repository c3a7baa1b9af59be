// Copyright Corvane. MIT License.
#pragma once

#include <vector>

#include "UObject/Class.h"
#include "UObject/Package.h"

/** The classes that reflection itself rests on, which nothing could describe before they are there, and the lists of
 * all types. */
class FIntrinsicClasses
{
public:
	/** Made at the first call. */
	static FIntrinsicClasses& Get();

	/** Forgets everything, the singletons of generated classes included; the objects are already gone. */
	void Reset();

	/** Takes note of a class or structure and of where its generated source keeps it. */
	void AddClass(UClass* Class, UClass** Singleton);
	void AddStruct(UScriptStruct** Singleton);

	UClass* Object = nullptr;
	UClass* Field = nullptr;
	UClass* Struct = nullptr;
	UClass* ScriptStruct = nullptr;
	UClass* Class = nullptr;
	UClass* Package = nullptr;
	UPackage* TransientPackage = nullptr;
	/** In the order in which they became known. */
	std::vector<UClass*> AllClasses;

private:
	void Make();

	std::vector<UClass**> ClassSingletons;
	std::vector<UScriptStruct**> StructSingletons;
};
