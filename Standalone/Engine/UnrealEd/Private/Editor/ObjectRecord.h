// Copyright Corvane. MIT License.
#pragma once

#include <vector>

#include "Editor/PropertyValue.h"

/**
 * What a step did to one object: it changed values, or it spawned the object as an actor. While the step is undone, the
 * actor stands in no level, but keeps its name and its values.
 */
class FObjectRecord
{
public:
	/** Copies all reflected values of an object that is about to change. */
	FObjectRecord(UObject* InObject, bool bInSpawned);

	/** Keeps what is different by now, flags the package. @return whether there is anything to undo. */
	bool Finish();

	/**
	 * Goes back (forward) over the step. Only the members and the array elements that it changed are set, if they are
	 * still there; an array whose length it changed is set as a whole. Nothing happens to a destroyed object.
	 */
	void Apply(bool bUndo);

	/** Tells the object of it, flags its package. An actor that has left the level is deselected instead. */
	void Notify(bool bUndo) const;

	/** Destroys an actor that has left the level for good. */
	void Forget() const;

	/** Whether the object's values are recorded, or it is or lies in a spawned actor. */
	bool Covers(const UObject* InObject) const;

	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	/** Null once the object or what it lies in is destroyed. */
	UObject* GetObject() const;

	UObject* Object;
	bool bSpawned;
	/** Where in the level's list the actor was when it left. */
	int32 Place = INDEX_NONE;
	/** The values that differ, before and after the step; until Finish all values before it. */
	std::vector<FPropertyValue> Before;
	std::vector<FPropertyValue> After;
};
