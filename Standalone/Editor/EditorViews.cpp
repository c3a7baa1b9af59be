// Copyright Corvane. MIT License.
#include "EditorViews.h"

#include "Editor.h"
#include "EditorViewportClient.h"

UWorld* FEditorViews::GetLevelWorld()
{
	return GEditor->GetEditorWorldContext().World();
}

TArray<FEditorViewportClient*> FEditorViews::FindLevelClients()
{
	TArray<FEditorViewportClient*> Clients;
	FEditorViewportClient* Active = FindActiveClient();
	if (Active && Active->GetWorld() == GetLevelWorld())
	{
		Clients.Add(Active);
	}
	for (FEditorViewportClient* Client : GEditor->GetAllViewportClients())
	{
		if (Client != Active && Client->GetWorld() == GetLevelWorld())
		{
			Clients.Add(Client);
		}
	}
	return Clients;
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
