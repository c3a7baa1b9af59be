// Copyright Corvane. MIT License.
#include "Editor/Transaction.h"

#include <algorithm>

#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "Templates/Casts.h"

void FTransaction::SaveObject(UObject* Object)
{
	// Which actors a level has is recorded actor by actor, so that undo leaves alone what was spawned since.
	if (!Object->IsA<ULevel>() &&
		std::none_of(
			Records.begin(), Records.end(), [Object](const FObjectRecord& Record) { return Record.Covers(Object); }))
	{
		Records.emplace_back(Object, false);
	}
}

void FTransaction::SaveCreated(UObject* Object)
{
	Records.emplace_back(CastChecked<AActor>(Object), true);
}

bool FTransaction::Finish()
{
	Records.erase(
		std::remove_if(Records.begin(), Records.end(), [](FObjectRecord& Record) { return !Record.Finish(); }),
		Records.end());
	return !Records.empty();
}

void FTransaction::Apply(bool bUndo)
{
	for (FObjectRecord& Record : Records)
	{
		Record.Apply(bUndo);
	}
	// Whoever is told finds everything changed already.
	for (const FObjectRecord& Record : Records)
	{
		Record.Notify(bUndo);
	}
}

void FTransaction::Forget() const
{
	for (const FObjectRecord& Record : Records)
	{
		Record.Forget();
	}
}

void FTransaction::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (FObjectRecord& Record : Records)
	{
		Record.AddReferencedObjects(Collector);
	}
}
