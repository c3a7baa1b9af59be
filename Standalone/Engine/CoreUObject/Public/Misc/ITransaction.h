// Copyright Corvane. MIT License.
#pragma once

#include "Internationalization/Text.h"

class UObject;

/** What a step of the undo history is called. */
struct FTransactionContext
{
	FText Title;
};

/** One step of the undo history while it is being recorded. GUndo points at it. */
class ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** Keeps the object's values, which are about to change. Only the first call for an object counts. */
	virtual void SaveObject(UObject* Object) = 0;

	/** The stand-alone engine's own: the object was made in this step, so undo takes it away. */
	virtual void SaveCreated(UObject* Object) = 0;
};
