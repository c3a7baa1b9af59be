// Copyright Corvane. MIT License.
#include "EditorViewportClient.h"

#include "Editor.h"

FEditorViewportClient::FEditorViewportClient(FEditorModeTools* /*InModeTools*/)
{
	check(GEditor);
	GEditor->AddViewportClients(this);
}

FEditorViewportClient::~FEditorViewportClient()
{
	if (GEditor)
	{
		GEditor->RemoveViewportClients(this);
	}
}

UWorld* FEditorViewportClient::GetWorld() const
{
	return World.IsValid() ? World.Get() : GEditor->GetEditorWorldContext().World();
}

void FEditorViewportClient::SetWorld(UWorld* InWorld)
{
	// Set by name or not: a client of the open level follows when another one is opened.
	World = InWorld == GEditor->GetEditorWorldContext().World() ? nullptr : InWorld;
}
