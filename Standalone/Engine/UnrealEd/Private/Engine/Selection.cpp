// Copyright Corvane. MIT License.
#include "Engine/Selection.h"

#include "UObject/Class.h"

USelection::FOnSelectionChanged USelection::SelectionChangedEvent;

void USelection::Select(UObject* InObject)
{
	if (IsValid(InObject) && !IsSelected(InObject))
	{
		SelectedObjects.Add(InObject);
		OnceSelected.Add(InObject);
	}
}

void USelection::Deselect(UObject* InObject)
{
	SelectedObjects.RemoveAll([InObject](const TWeakObjectPtr<UObject>& Object) { return Object == InObject; });
}

void USelection::DeselectAll(UClass* InClass)
{
	SelectedObjects.RemoveAll([InClass](const TWeakObjectPtr<UObject>& Object)
		{ return !InClass || !Object.IsValid() || Object->IsA(InClass); });
	if (SelectedObjects.Num() == 0)
	{
		OnceSelected = TSet<const UObject*>();
	}
}

bool USelection::IsSelected(const UObject* InObject) const
{
	return InObject && OnceSelected.Contains(InObject) &&
		SelectedObjects.ContainsByPredicate(
			[InObject](const TWeakObjectPtr<UObject>& Object) { return Object == InObject; });
}

int32 USelection::Num() const
{
	ForgetDestroyed();
	return SelectedObjects.Num();
}

UObject* USelection::GetSelectedObject(int32 InIndex) const
{
	ForgetDestroyed();
	return SelectedObjects.IsValidIndex(InIndex) ? SelectedObjects[InIndex].Get() : nullptr;
}

void USelection::ForgetDestroyed() const
{
	SelectedObjects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
}
