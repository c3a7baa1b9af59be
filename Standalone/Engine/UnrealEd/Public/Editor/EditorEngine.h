// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Editor/Transactor.h"
#include "Engine/Engine.h"
#include "UObject/Object.h"

#include "EditorEngine.generated.h"

class AActor;
class FEditorViewportClient;
class FViewport;
class USelection;

/** The editor without its windows: the open level, what is selected in it and the viewports that show it. */
UCLASS()
class UNREALED_API UEditorEngine : public UObject
{
	GENERATED_BODY()

public:
	void PostInitProperties() override;

	/** The world of the open level. bEnsureIsGWorld means nothing here: there is no global world. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	/**
	 * Opens an empty level: destroys the world of the level that was open and deselects everything. Viewports that
	 * showed that world show the new one. The undo history is forgotten.
	 */
	UWorld* NewMap();

	/** The viewport that was last used, or null. */
	FViewport* GetActiveViewport();

	/** All clients in the order of their making. */
	const TArray<FEditorViewportClient*>& GetAllViewportClients();

	/** Clients enter themselves when they are made and leave when they are deleted. @return the place in the list. */
	int32 AddViewportClients(FEditorViewportClient* ViewportClient);
	void RemoveViewportClients(FEditorViewportClient* ViewportClient);

	/** Has every client's viewport drawn anew and, if asked, what can be clicked at found out anew. */
	void RedrawAllViewports(bool bInvalidateHitProxies = true);

	/** Deselects all actors. There are no surfaces that bDeselectBSPSurfs could mean, and nobody is warned. */
	virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true);

	/**
	 * Selects or deselects one actor, whatever else is selected. Nothing is hidden here, so bSelectEvenIfHidden makes
	 * no difference.
	 * @param bNotify broadcasts the change, if there is one; with bForceRefresh even if there is none.
	 */
	virtual void SelectActor(
		AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false, bool bForceRefresh = false);

	USelection* GetSelectedActors() const;
	/** What is selected of all that is no actor. */
	USelection* GetSelectedObjects() const;

	/** Begins a step of the undo history; see UTransactor. @return how many were open before. */
	int32 BeginTransaction(const FText& Description) { return Trans->Begin(Description); }
	/** Ends what the last BeginTransaction began. @return how many were open before. */
	int32 EndTransaction() { return Trans->End(); }
	/** @return false if there is no step to undo, or if one is being recorded. */
	bool UndoTransaction(bool bCanRedo = true) { return Trans->Undo(bCanRedo); }
	bool RedoTransaction() { return Trans->Redo(); }
	/** Forgets the undo history. */
	void ResetTransaction(const FText& Reason) { Trans->Reset(Reason); }

	/** Shows the objects in the content browser; brings it to the front if asked. See FStandaloneEditorEvents. */
	void SyncBrowserToObjects(TArray<UObject*>& InObjectsToSync, bool bFocusContentBrowser = true);

	/**
	 * The stand-alone editor's own: tells which viewport is in use. It stays active until another is set or its client
	 * is deleted.
	 */
	void SetActiveViewport(FViewport* InViewport);

	/** The undo history. */
	UPROPERTY()
	UTransactor* Trans = nullptr;

private:
	FWorldContext EditorWorldContext;
	FViewport* ActiveViewport = nullptr;
	TArray<FEditorViewportClient*> AllViewportClients;

	UPROPERTY()
	USelection* SelectedActors = nullptr;

	UPROPERTY()
	USelection* SelectedObjects = nullptr;
};
