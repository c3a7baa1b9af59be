// Copyright Corvane. MIT License.
#include "EditedObjects.h"

#include "PropertyNode.h"
#include "UObject/Class.h"

TSharedRef<FEditedObjects> FEditedObjects::Make(
	const TArray<TWeakObjectPtr<UObject>>& InObjects, const TSharedPtr<IPropertyRowGenerator>& InGenerator)
{
	const TSharedRef<FEditedObjects> Edited = MakeShared<FEditedObjects>();
	Edited->Generator = InGenerator;
	for (const TWeakObjectPtr<UObject>& Weak : InObjects)
	{
		const UObject* Object = Weak.Get();
		if (!Object || Edited->Objects.Contains(Weak))
		{
			continue;
		}
		Edited->Objects.Add(Weak);
		Edited->Class = Edited->Class ? Edited->Class : Object->GetClass();
		while (!Object->IsA(Edited->Class))
		{
			Edited->Class = Edited->Class->GetSuperClass();
		}
	}
	Edited->Root = MakeShared<FPropertyNode>(Edited, nullptr, nullptr, INDEX_NONE);
	return Edited;
}

bool FEditedObjects::IsOutdated() const
{
	return Objects.ContainsByPredicate([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); }) ||
		CountedArrays.ContainsByPredicate([](const FPropertyNode* Array) { return Array->HasOtherLength(); });
}
