// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <unordered_set>
#include <vector>

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class AActor;

/** Which actors are selected, as of the last Update. The engine's own list takes a walk for each question. */
class FSelectionWatch
{
public:
	FSelectionWatch();
	FSelectionWatch(const FSelectionWatch&) = delete;
	FSelectionWatch& operator=(const FSelectionWatch&) = delete;
	~FSelectionWatch();

	/** @return whether other actors are selected than at the last call. */
	bool Update();

	/** In the order of selection. */
	std::vector<AActor*> GetActors() const;
	size_t Num() const { return Actors.size(); }
	bool Contains(const AActor* Actor) const { return Known.count(Actor) != 0; }

private:
	FDelegateHandle Handle;
	/** The editor has told of a change. Not all changes are told. */
	bool bTold = true;
	std::vector<TWeakObjectPtr<AActor>> Actors;
	/** For comparison only: may point to what has gone. */
	std::unordered_set<const AActor*> Known;
};
