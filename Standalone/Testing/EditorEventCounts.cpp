// Copyright Corvane. MIT License.
#include "EditorEventCounts.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/Level.h"
#include "StandaloneEditorEvents.h"

FEditorEventCounts::FEditorEventCounts()
{
	LevelDirtiedHandle = ULevel::LevelDirtiedEvent.AddLambda([this]() { ++LevelDirtied; });
	RedrawHandle = FStandaloneEditorEvents::Redraw.AddLambda(
		[this](bool bInvalidateHitProxies)
		{
			++Redraws;
			RedrawsWithHitProxies += bInvalidateHitProxies ? 1 : 0;
		});
	ContentSyncHandle = FStandaloneEditorEvents::ContentSync.AddLambda(
		[this](const TArray<UObject*>& Objects, bool bFocusContentBrowser) {
			ContentSyncs.Add(FContentSync{Objects, bFocusContentBrowser});
		});
	AssetAddedHandle =
		IAssetRegistry::GetChecked().OnAssetAdded().AddLambda([this](const FAssetData&) { ++AssetsAdded; });
}

FEditorEventCounts::~FEditorEventCounts()
{
	ULevel::LevelDirtiedEvent.Remove(LevelDirtiedHandle);
	FStandaloneEditorEvents::Redraw.Remove(RedrawHandle);
	FStandaloneEditorEvents::ContentSync.Remove(ContentSyncHandle);
	if (IAssetRegistry* Registry = IAssetRegistry::Get())
	{
		Registry->OnAssetAdded().Remove(AssetAddedHandle);
	}
}
