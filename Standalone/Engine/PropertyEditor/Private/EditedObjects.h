// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FPropertyNode;
class IPropertyRowGenerator;
class UClass;

/**
 * The objects that one set of rows edits, and their properties. Only the rows keep it alive: a handle that outlives
 * them is an invalid one.
 */
class FEditedObjects
{
public:
	/** What is no object any more is left out, and what stands there twice. */
	static TSharedRef<FEditedObjects> Make(
		const TArray<TWeakObjectPtr<UObject>>& InObjects, const TSharedPtr<IPropertyRowGenerator>& InGenerator);

	/** Whether objects have gone, or arrays that were counted while the rows were built are of another length. */
	bool IsOutdated() const;

	TArray<TWeakObjectPtr<UObject>> Objects;
	/** The nearest class that all of them have in common; null without objects. */
	const UClass* Class = nullptr;
	/** Has the class's properties below it. */
	TSharedPtr<FPropertyNode> Root;
	/** Whose rows these are. */
	TWeakPtr<IPropertyRowGenerator> Generator;
	bool bBuilding = false;
	/** Somebody hears of a change: whoever makes it may be one of the rows. */
	bool bNotifying = false;
	/** The arrays that were counted while the rows were built. */
	TArray<const FPropertyNode*> CountedArrays;
};
