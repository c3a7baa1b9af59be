// Copyright Corvane. MIT License.
#pragma once

#include <memory>
#include <vector>

#include "CoreMinimal.h"

class FLevelEditorViewportClient;
class UWorld;

/** The editor's viewports with their clients. Opened and closed only while there is GEditor. */
class FViewportSet
{
public:
	FViewportSet();
	FViewportSet(const FViewportSet&) = delete;
	FViewportSet& operator=(const FViewportSet&) = delete;
	~FViewportSet();

	/**
	 * Puts new viewports in place of those that were open, one for each world. One that showed the open level's world
	 * follows when another level is opened; null stands for that world, too.
	 * @param Active the index of the viewport that is in use, or INDEX_NONE for none.
	 */
	void Open(const std::vector<UWorld*>& Worlds, int32 Active);
	void Close();

	/** Fatal for an index that there is not. */
	FLevelEditorViewportClient& GetClient(size_t Index) const;

private:
	struct FEntry;

	std::vector<std::unique_ptr<FEntry>> Entries;
};
