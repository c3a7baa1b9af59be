// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "CoreMinimal.h"
#include "Panels/SelectionWatch.h"
#include "Panels/ViewProjection.h"

class AActor;
class UClass;

/** What the viewport shows: a copy of what it needs of the level's actors, as of the last Update. */
class FViewportScene
{
public:
	struct FItem
	{
		TWeakObjectPtr<AActor> Actor;
		FPoint3 Location;
		FRotator Rotation;
		/** On one line and of limited width. */
		QString Name;
		QIcon Icon;
		/** The same for all items with one icon. */
		const UClass* Class = nullptr;
		/** Captures what it sees. */
		bool bCamera = false;
		bool bSelected = false;
	};

	/** An item that can be seen, and where. */
	struct FSeenItem
	{
		const FItem* Item;
		QPointF Pixel;
		double Depth;
	};

	/** @return whether actors, their names, their places or the selection have changed. */
	bool Update();

	/** What the view has of the items; far ones first, of equally far ones in the level's order. */
	std::vector<FSeenItem> FindSeen(const FViewProjection& View) const;

	/** @return the nearest actor with its icon at this point, or null. */
	AActor* FindActorAt(const FViewProjection& View, QPointF Point) const;

	/** @return false without selected actors that are anywhere. */
	bool FindSelectionBounds(FPoint3& OutCentre, double& OutRadius) const;

	const FSelectionWatch& GetSelection() const { return Selection; }
	size_t Num() const { return Items.size(); }

	/** In units of the widget. */
	static constexpr double IconSize = 32.0;

private:
	uint64 Sign() const;
	void ReadActors();

	FSelectionWatch Selection;
	uint64 Signature = 0;
	std::vector<FItem> Items;
};
