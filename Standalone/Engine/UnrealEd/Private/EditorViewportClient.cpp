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
