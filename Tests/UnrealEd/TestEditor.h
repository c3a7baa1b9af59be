// Copyright Corvane. MIT License.
#pragma once

#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

/** An editor with an empty level for the length of a test. */
class FTestEditor
{
public:
	FTestEditor()
	{
		GEditor = NewObject<UEditorEngine>();
		GEditor->AddToRoot();
		GEditor->NewMap();
	}
	~FTestEditor()
	{
		GEditor->GetEditorWorldContext().World()->DestroyWorld(true);
		GEditor->RemoveFromRoot();
		GEditor = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	FTestEditor(const FTestEditor&) = delete;
	FTestEditor& operator=(const FTestEditor&) = delete;

	UWorld* World() const { return GEditor->GetEditorWorldContext().World(); }
	AActor* Spawn() const { return World()->SpawnActor<AActor>(); }
};

/** Counts what it is asked to do. */
class FTestViewport : public FViewport
{
public:
	void InvalidateDisplay() override { ++Displays; }
	void InvalidateHitProxy() override { ++HitProxies; }

	int32 Displays = 0;
	int32 HitProxies = 0;
};
