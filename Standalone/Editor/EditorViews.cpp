// Copyright Corvane. MIT License.
#include "EditorViews.h"

#include "Editor.h"
#include "EditorViewportClient.h"

UWorld* FEditorViews::GetLevelWorld()
{
	return GEditor->GetEditorWorldContext().World();
}

FEditorViewportClient* FEditorViews::FindActiveClient()
{
	const FViewport* Active = GEditor->GetActiveViewport();
	for (FEditorViewportClient* Client : GEditor->GetAllViewportClients())
	{
		if (Active && Client->Viewport == Active)
		{
			return Client;
		}
	}
	return nullptr;
}
