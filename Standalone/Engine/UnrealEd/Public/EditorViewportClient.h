// Copyright Corvane. MIT License.
#pragma once

#include "Engine/World.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "UnrealClient.h"

class FEditorModeTools;

/** What decides on the content of one of the editor's viewports: the world and the view into it. Made with GEditor
 * only. */
class UNREALED_API FEditorViewportClient : public FViewportClient
{
public:
	/** There are no edit modes: InModeTools is null. The client enters itself in GEditor's list. */
	explicit FEditorViewportClient(FEditorModeTools* InModeTools);
	~FEditorViewportClient() override;
	FEditorViewportClient(const FEditorViewportClient&) = delete;
	FEditorViewportClient& operator=(const FEditorViewportClient&) = delete;

	/** The world that was set, as long as it exists; else that of the open level. */
	UWorld* GetWorld() const override;

	/** The stand-alone editor's own: shows a world other than that of the open level; null for the latter. */
	void SetWorld(UWorld* InWorld) { World = InWorld; }

	const FVector& GetViewLocation() const { return ViewLocation; }
	const FRotator& GetViewRotation() const { return ViewRotation; }
	void SetViewLocation(const FVector& NewLocation) { ViewLocation = NewLocation; }
	void SetViewRotation(const FRotator& NewRotation) { ViewRotation = NewRotation; }

	/** Where the view is drawn; null while the client has no viewport. Not owned. */
	FViewport* Viewport = nullptr;

private:
	TWeakObjectPtr<UWorld> World;
	FVector ViewLocation;
	FRotator ViewRotation;
};
