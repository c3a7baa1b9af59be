// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FEditorViewportClient;
class UWorld;

/** What the editor shows: its level's world and the view into it. */
class FEditorViews
{
public:
	/** @return the world of the open level. */
	static UWorld* GetLevelWorld();

	/** @return the clients that show the open level, that of the active viewport first if it does. */
	static TArray<FEditorViewportClient*> FindLevelClients();

	/** @return the client of the active viewport, or null if no viewport is active. */
	static FEditorViewportClient* FindActiveClient();
};
