// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"

class UClass;
class UObject;

/** The classes derived from one, in the order in which they became known; only the direct ones if not recursive. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);

/** What lies in Outer, in the order in which it was made; with bIncludeNestedObjects what lies therein too. */
COREUOBJECT_API void GetObjectsWithOuter(
	const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true);
