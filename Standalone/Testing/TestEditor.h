// Copyright Corvane. MIT License.
#pragma once

#include "StandaloneEditor.h"

#include <memory>
#include <vector>

#include "CoreMinimal.h"

class AActor;
class FEditorViewportClient;
class FLevelEditorViewportClient;
class FTestViewport;
class UObject;
class UWorld;

/** A fresh editor for one test, whose GEditor is a URecordingEditor. A start that fails ends the test program. */
class FTestEditor
{
public:
	/** With the plugin, if it was built into the folder of the test program. */
	FTestEditor();
	explicit FTestEditor(const FStandaloneEditorOptions& Options);
	FTestEditor(const FTestEditor&) = delete;
	FTestEditor& operator=(const FTestEditor&) = delete;
	~FTestEditor();

	/** Only the engine: for what does not need the plugin. */
	static FStandaloneEditorOptions EngineOnly();

	/** No viewports: for what happens without. */
	static FStandaloneEditorOptions WithoutViewport();

	FStandaloneEditor& Get() { return Editor; }
	const FStandaloneEditor& Get() const { return Editor; }

	/** 0: the world of the open level; 1: the second one. */
	UWorld& GetWorld(int32 Index = 0) const { return *Editor.GetWorld(Index); }

	/** Adds a client with a viewport of its own to the end of GEditor's list; it leaves with this object. */
	FEditorViewportClient& AddClient(UWorld& World);

	/** Makes the client's viewport the active one. */
	static void Activate(const FEditorViewportClient& Client);

	/** Spawns an actor of the reflected class; fatal if there is none of that name. */
	static AActor& Spawn(UWorld& World, const TCHAR* ClassName);

	/** The actors of a world, in iteration order. */
	static TArray<AActor*> GetActors(UWorld& World);

private:
	struct FClient;

	FStandaloneEditor Editor;
	std::vector<std::unique_ptr<FClient>> Clients;
};
