// Copyright Corvane. MIT License.
#include "LevelBuilder.h"

#include "LevelPlan.h"

#include "Editor.h"
#include "EditorAssets.h"
#include "EditorViewportClient.h"
#include "EditorViews.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "PropertyReader.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"

namespace
{
	void CloseLevel()
	{
		GEditor->NewMap();
		GEditor->GetSelectedObjects()->DeselectAll();
		FEditorAssets::RemoveAll();
		// Frees the names of what is gone for what comes.
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}

	void MakeAssets(FLevelPlan& Plan)
	{
		for (const FLevelPlan::FAsset& Asset : Plan.Assets)
		{
			Plan.References.Resolve(Asset.Path, FEditorAssets::Make(Asset.Path, Asset.Class));
		}
	}

	void SpawnActors(FLevelPlan& Plan, UWorld& World)
	{
		for (const FLevelPlan::FActor& Planned : Plan.Actors)
		{
			FActorSpawnParameters Parameters;
			Parameters.Name = Planned.Name;
			AActor* Actor = World.SpawnActor(Planned.Class, &Planned.Location, &Planned.Rotation, Parameters);
			check(Actor != nullptr);
			Plan.References.Resolve(Planned.Name, Actor);
		}
	}

	/** Tells an actor and its components that they were read. */
	void FinishLoading(AActor& Actor)
	{
		TArray<UActorComponent*> Components;
		Actor.GetComponents(Components);
		for (UActorComponent* Component : Components)
		{
			Component->PostLoad();
		}
		Actor.PostLoad();
	}

	void SetProperties(const FLevelPlan& Plan)
	{
		for (const FLevelPlan::FActor& Planned : Plan.Actors)
		{
			std::string Error;
			FPropertyReader Reader(FPropertyReader::EPass::Write, Plan.References, Error);
			AActor* Actor = CastChecked<AActor>(Plan.References.Find(Planned.Name)->Object);
			// The plan was checked with the same rules.
			verify(Reader.ReadMembers(Planned.Class, Actor, Planned.Properties, Planned.Place / "properties"));
			FinishLoading(*Actor);
		}
	}

	void SetView(const FLevelPlan& Plan)
	{
		for (FEditorViewportClient* Client : FEditorViews::FindLevelClients())
		{
			Client->SetViewLocation(Plan.ViewLocation);
			Client->SetViewRotation(Plan.ViewRotation);
		}
	}
}

void FLevelBuilder::Replace(FLevelPlan& Plan)
{
	CloseLevel();
	MakeAssets(Plan);
	SpawnActors(Plan, *FEditorViews::GetLevelWorld());
	SetProperties(Plan);
	SetView(Plan);
	GEditor->RedrawAllViewports(true);
}
