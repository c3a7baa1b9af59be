// Copyright Corvane. MIT License.
#include "SelectionWatch.h"

#include "Editor.h"
#include "Engine/Selection.h"
#include "GameFramework/Actor.h"

FSelectionWatch::FSelectionWatch()
{
	Handle = USelection::SelectionChangedEvent.AddLambda([this](UObject*) { bTold = true; });
}

FSelectionWatch::~FSelectionWatch()
{
	USelection::SelectionChangedEvent.Remove(Handle);
}

bool FSelectionWatch::Update()
{
	const USelection* Selection = GEditor->GetSelectedActors();
	const int32 NumNow = Selection->Num();
	const bool bSameEnd = NumNow == 0 ||
		(!Actors.empty() && Actors.back() == static_cast<AActor*>(Selection->GetSelectedObject(NumNow - 1)));
	if (!bTold && static_cast<size_t>(NumNow) == Actors.size() && bSameEnd)
	{
		return false;
	}
	bTold = false;
	Actors.clear();
	Known.clear();
	TArray<AActor*> Selected;
	Selection->GetSelectedObjects(Selected);
	for (AActor* Actor : Selected)
	{
		Actors.emplace_back(Actor);
		Known.insert(Actor);
	}
	return true;
}

std::vector<AActor*> FSelectionWatch::GetActors() const
{
	std::vector<AActor*> Valid;
	for (const TWeakObjectPtr<AActor>& Actor : Actors)
	{
		if (Actor.IsValid())
		{
			Valid.push_back(Actor.Get());
		}
	}
	return Valid;
}
