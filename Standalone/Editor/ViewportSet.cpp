// Copyright Corvane. MIT License.
#include "ViewportSet.h"

#include "Editor.h"
#include "LevelEditorViewport.h"
#include "NullViewport.h"

struct FViewportSet::FEntry
{
	explicit FEntry(UWorld* World)
	{
		Client.SetWorld(World);
		Client.Viewport = &Viewport;
	}

	// Before its client, which tells it good-bye.
	FNullViewport Viewport;
	FLevelEditorViewportClient Client{nullptr};
};

FViewportSet::FViewportSet() = default;

FViewportSet::~FViewportSet() = default;

void FViewportSet::Open(const std::vector<UWorld*>& Worlds, int32 Active)
{
	Close();
	for (UWorld* World : Worlds)
	{
		Entries.push_back(std::make_unique<FEntry>(World));
	}
	GEditor->SetActiveViewport(Active == INDEX_NONE ? nullptr : &Entries.at(static_cast<size_t>(Active))->Viewport);
}

void FViewportSet::Close()
{
	Entries.clear();
}

FLevelEditorViewportClient& FViewportSet::GetClient(size_t Index) const
{
	check(Index < Entries.size());
	return Entries[Index]->Client;
}
