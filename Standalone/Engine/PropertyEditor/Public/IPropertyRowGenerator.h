// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "IDetailTreeNode.h"

class UObject;
struct FPropertyChangedEvent;

/** How rows are generated; nothing can be chosen here. */
struct FPropertyRowGeneratorArgs
{};

/** The rows of a details panel, without its window. The edited objects are held weakly. */
class IPropertyRowGenerator
{
public:
	DECLARE_MULTICAST_DELEGATE(FOnRowsRefreshed);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnFinishedChangingProperties, const FPropertyChangedEvent&);

	virtual ~IPropertyRowGenerator() = default;

	/** Builds the rows for what the objects have in common: the properties of their nearest common class. */
	virtual void SetObjects(const TArray<UObject*>& InObjects) = 0;
	/** The categories, from the top down. */
	virtual const TArray<TSharedRef<IDetailTreeNode>>& GetRootTreeNodes() const = 0;

	/** The rows were built anew; those from before show nothing any more. */
	virtual FOnRowsRefreshed& OnRowsRefreshed() = 0;
	/** A value was changed through one of the rows' handles. */
	virtual FOnFinishedChangingProperties& OnFinishedChangingProperties() = 0;

	/**
	 * Builds the rows anew if objects have gone or arrays are of another length. The real engine does so by itself
	 * with each frame.
	 * @return whether it did.
	 */
	virtual bool RefreshIfOutdated() = 0;
};
