// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Set.h"
#include "CoreMinimal.h"
#include "Templates/Casts.h"
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
	/** Null if there are not so many. Looks at all of them, which GetSelectedObjects does but once. */
	UObject* GetSelectedObject(int32 InIndex) const;
	/** Those that are of the type, in the order of selection. @return how many. */
	template <typename T>
	int32 GetSelectedObjects(TArray<T*>& OutSelectedObjects) const
	{
		OutSelectedObjects.Empty();
		for (const TWeakObjectPtr<UObject>& Object : SelectedObjects)
		{
			if (T* Selected = Cast<T>(Object.Get()))
			{
				OutSelectedObjects.Add(Selected);
			}
		}
		return OutSelectedObjects.Num();
	}

private:
	void ForgetDestroyed() const;

	mutable TArray<TWeakObjectPtr<UObject>> SelectedObjects;
	/** The addresses of all that have been selected since none was: what is not among them is not selected. */
	TSet<const UObject*> OnceSelected;
};
