// Copyright Corvane. MIT License.
#pragma once

#include "UObject/UObjectGlobals.h"

/** Something that is no UObject and keeps objects alive. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject&);
	FGCObject& operator=(const FGCObject&) = default;
	virtual ~FGCObject();

	/** Shows the collector every object to keep. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
};
