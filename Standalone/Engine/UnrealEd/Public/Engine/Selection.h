// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include "Selection.generated.h"

/** A set of selected objects, in the order of selection. A destroyed object is selected no more. */
UCLASS()
class UNREALED_API USelection : public UObject
{
	GENERATED_BODY()

public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnSelectionChanged, UObject*)

		/** Broadcast with the selection that changed, by the editor's operations where they are asked to tell. */
		static FOnSelectionChanged SelectionChangedEvent;

	/** Adds an object that is not selected yet; null adds nothing. Tells nobody. */
	void Select(UObject* InObject);

	/** Tells nobody. */
	void Deselect(UObject* InObject);

	/** Deselects all objects, or those of the class. Tells nobody. */
	void DeselectAll(UClass* InClass = nullptr);

	bool IsSelected(const UObject* InObject) const;
	int32 Num() const;
	/** Null if there are not so many. */
	UObject* GetSelectedObject(int32 InIndex) const;

private:
	void ForgetDestroyed() const;

	mutable TArray<TWeakObjectPtr<UObject>> SelectedObjects;
};
