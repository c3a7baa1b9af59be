// Copyright Corvane. MIT License.
#include "Editor/EditorEngine.h"

#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "StandaloneEditorEvents.h"

UEditorEngine* GEditor = nullptr;

void UEditorEngine::PostInitProperties()
{
	Super::PostInitProperties();
	if (!IsTemplate())
	{
		SelectedActors = NewObject<USelection>(this, FName("SelectedActors"));
		SelectedObjects = NewObject<USelection>(this, FName("SelectedObjects"));
		Trans = NewObject<UTransactor>(this, FName("Trans"));
	}
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool /*bEnsureIsGWorld*/)
{
	return EditorWorldContext;
}

UWorld* UEditorEngine::NewMap()
{
	ResetTransaction(NSLOCTEXT("UnrealEd", "NewMap", "New Map"));
	SelectNone(true, true, false);
	SelectedObjects->DeselectAll();
	UWorld* OldWorld = EditorWorldContext.World();
	EditorWorldContext.SetCurrentWorld(UWorld::CreateWorld(EWorldType::Editor, true));
	if (OldWorld)
	{
		OldWorld->DestroyWorld(true);
	}
	return EditorWorldContext.World();
}

FViewport* UEditorEngine::GetActiveViewport()
{
	return ActiveViewport;
}

void UEditorEngine::SetActiveViewport(FViewport* InViewport)
{
	ActiveViewport = InViewport;
}

const TArray<FEditorViewportClient*>& UEditorEngine::GetAllViewportClients()
{
	return AllViewportClients;
}

int32 UEditorEngine::AddViewportClients(FEditorViewportClient* ViewportClient)
{
	return AllViewportClients.Add(ViewportClient);
}

void UEditorEngine::RemoveViewportClients(FEditorViewportClient* ViewportClient)
{
	// A viewport goes with its client; the pointer must not outlive it.
	if (ActiveViewport == ViewportClient->Viewport)
	{
		ActiveViewport = nullptr;
	}
	AllViewportClients.Remove(ViewportClient);
}

void UEditorEngine::RedrawAllViewports(bool bInvalidateHitProxies)
{
	FStandaloneEditorEvents::Redraw.Broadcast(bInvalidateHitProxies);
	for (const FEditorViewportClient* Client : AllViewportClients)
	{
		if (!Client->Viewport)
		{
			continue;
		}
		if (bInvalidateHitProxies)
		{
			Client->Viewport->InvalidateHitProxy();
		}
		Client->Viewport->InvalidateDisplay();
	}
}

void UEditorEngine::SelectNone(bool bNoteSelectionChange, bool /*bDeselectBSPSurfs*/, bool /*WarnAboutManyActors*/)
{
	const bool bChanged = SelectedActors->Num() > 0;
	SelectedActors->DeselectAll();
	if (bChanged && bNoteSelectionChange)
	{
		USelection::SelectionChangedEvent.Broadcast(SelectedActors);
	}
}

void UEditorEngine::SelectActor(
	AActor* Actor, bool bInSelected, bool bNotify, bool /*bSelectEvenIfHidden*/, bool bForceRefresh)
{
	if (!IsValid(Actor))
	{
		return;
	}
	const bool bChanged = SelectedActors->IsSelected(Actor) != bInSelected;
	if (bInSelected)
	{
		SelectedActors->Select(Actor);
	}
	else
	{
		SelectedActors->Deselect(Actor);
	}
	if (bNotify && (bChanged || bForceRefresh))
	{
		USelection::SelectionChangedEvent.Broadcast(SelectedActors);
	}
}

USelection* UEditorEngine::GetSelectedActors() const
{
	return SelectedActors;
}

USelection* UEditorEngine::GetSelectedObjects() const
{
	return SelectedObjects;
}

void UEditorEngine::SyncBrowserToObjects(TArray<UObject*>& InObjectsToSync, bool bFocusContentBrowser)
{
	FStandaloneEditorEvents::ContentSync.Broadcast(InObjectsToSync, bFocusContentBrowser);
}
