// Copyright Corvane. MIT License.
#include "ActorEdits.h"

#include "Editor.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "UObject/Class.h"

void FActorEdits::SelectOnly(const std::vector<AActor*>& Actors)
{
	GEditor->SelectNone(Actors.empty(), true, false);
	for (AActor* Actor : Actors)
	{
		const bool bLast = Actor == Actors.back();
		GEditor->SelectActor(Actor, true, bLast, true);
	}
}

bool FActorEdits::HasPlace(const UClass* Class)
{
	return Class->GetDefaultObject<AActor>()->GetRootComponent() != nullptr;
}

AActor* FActorEdits::Place(UClass* Class, const FVector& Location, const FRotator& Rotation)
{
	GEditor->BeginTransaction(NSLOCTEXT("UnrealEd", "CreateActors", "Create Actors"));
	AActor* Actor = FEditorViews::GetLevelWorld()->SpawnActor(Class, &Location, &Rotation);
	GEditor->EndTransaction();
	if (Actor)
	{
		SelectOnly({Actor});
	}
	return Actor;
}
