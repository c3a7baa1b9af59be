// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

/** Makes objects and their parts, and gives them the values of their templates. */
class FObjectConstruction
{
public:
	/** What StaticConstructObject_Internal does once the parameters are known to be good. */
	static UObject* Construct(const FStaticConstructObjectParameters& Params);

	/** A class object while the classes of class objects are themselves being made: nothing but memory and constructor.
	 */
	static UClass* ConstructRawClass(const ANSICHAR* Name);
	/** Gives a raw class object the class and outer that it could not have before. */
	static void CompleteRawClass(UClass* Raw, UClass* ItsClass, UObject* Outer);

	/** The object whose constructor runs, or null. */
	static FObjectInitializer* GetCurrent();
	/** Puts a part into the object that is being made. */
	static UObject* ConstructSubobject(UObject* Owner, FName Name, UClass* Class, EObjectFlags ExtraFlags);

private:
	static UObject* ConstructBare(FObjectInitializer& Initializer);
	/** Gives the object and its parts the values of the template and its parts. */
	static void CopyTemplate(const FObjectInitializer& Initializer, UObject* Template);
};
