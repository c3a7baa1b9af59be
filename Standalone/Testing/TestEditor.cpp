// Copyright Corvane. MIT License.
#include "TestEditor.h"

#include <string>

#include "Editor.h"
#include "Engine/World.h"
#include "EngineText.h"
#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"
#include "LevelEditorViewport.h"
#include "NullViewport.h"
#include "RecordingEditor.h"
#include "UObject/Class.h"

extern "C" void RegisterReflection_StandaloneTesting();

struct FTestEditor::FClient
{
	FNullViewport Viewport;
	FLevelEditorViewportClient Client{nullptr};
};

FTestEditor::FTestEditor() : FTestEditor(FStandaloneEditorOptions()) {}

FTestEditor::FTestEditor(const FStandaloneEditorOptions& Options)
{
	// Lets level files name the classes of tests.
	RegisterReflection_StandaloneTesting();
	FStandaloneEditorOptions Recording = Options;
	Recording.GetEditorClass = &URecordingEditor::StaticClass;
	std::string Error;
	const bool bStarted = Editor.Start(Recording, Error);
	checkf(bStarted, TEXT("%s"), UTF8_TO_TCHAR(Error.c_str()));
}

FTestEditor::~FTestEditor()
{
	// Clients leave GEditor's list, so before it goes.
	Clients.clear();
	Editor.Shutdown();
}

FStandaloneEditorOptions FTestEditor::EngineOnly()
{
	FStandaloneEditorOptions Options;
	Options.bLoadPlugin = false;
	return Options;
}

FStandaloneEditorOptions FTestEditor::WithoutViewport()
{
	FStandaloneEditorOptions Options;
	Options.bOpenViewport = false;
	return Options;
}

FEditorViewportClient& FTestEditor::AddClient(UWorld& World)
{
	Clients.push_back(std::make_unique<FClient>());
	FClient& Added = *Clients.back();
	Added.Client.Viewport = &Added.Viewport;
	Added.Client.SetWorld(&World);
	return Added.Client;
}

void FTestEditor::Activate(const FEditorViewportClient& Client)
{
	GEditor->SetActiveViewport(Client.Viewport);
}

AActor& FTestEditor::Spawn(UWorld& World, const TCHAR* ClassName)
{
	UClass* Class = FindObject<UClass>(ANY_PACKAGE, ClassName);
	AActor* Actor = Class ? World.SpawnActor(Class) : nullptr;
	checkf(Actor != nullptr, TEXT("no actor of class %s can be spawned"), ClassName);
	return *Actor;
}

TArray<AActor*> FTestEditor::GetActors(UWorld& World)
{
	TArray<AActor*> Actors;
	UGameplayStatics::GetAllActorsOfClass(&World, AActor::StaticClass(), Actors);
	return Actors;
}
