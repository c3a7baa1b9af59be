// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class UObject;

/** Counts, while it lives, what the editor was asked to show anew. */
class FEditorEventCounts
{
public:
	struct FContentSync
	{
		TArray<UObject*> Objects;
		bool bFocusContentBrowser;
	};

	FEditorEventCounts();
	FEditorEventCounts(const FEditorEventCounts&) = delete;
	FEditorEventCounts& operator=(const FEditorEventCounts&) = delete;
	~FEditorEventCounts();

	/** Broadcasts of ULevel::LevelDirtiedEvent. */
	int32 LevelDirtied = 0;
	/** Calls of RedrawAllViewports, and how many of them wanted hit proxies anew. */
	int32 Redraws = 0;
	int32 RedrawsWithHitProxies = 0;
	TArray<FContentSync> ContentSyncs;
	/** New assets that the asset registry told of. */
	int32 AssetsAdded = 0;

private:
	FDelegateHandle LevelDirtiedHandle;
	FDelegateHandle RedrawHandle;
	FDelegateHandle ContentSyncHandle;
	FDelegateHandle AssetAddedHandle;
};
