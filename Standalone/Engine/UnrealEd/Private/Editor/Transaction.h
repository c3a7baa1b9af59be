// Copyright Corvane. MIT License.
#pragma once

#include "Editor/ObjectRecord.h"
#include "Misc/ITransaction.h"

/** One step of the undo history. */
class FTransaction : public ITransaction
{
public:
	explicit FTransaction(const FText& InTitle) : Title(InTitle) {}

	void SaveObject(UObject* Object) override;
	void SaveCreated(UObject* Object) override;

	/** Ends the recording and flags the packages of what changed. @return whether anything did. */
	bool Finish();

	/** Goes back (forward) over the step, then tells each object and flags its package. */
	void Apply(bool bUndo);

	/** Gives the collector what the step keeps although it is undone. */
	void Forget() const;

	void AddReferencedObjects(FReferenceCollector& Collector);

	const FText Title;

private:
	std::vector<FObjectRecord> Records;
};
