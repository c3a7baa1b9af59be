// Copyright Corvane. MIT License.
#include "Editor/ObjectRecord.h"

#include "Editor.h"
#include "Engine/Level.h"
#include "GameFramework/Actor.h"

namespace
{
	/** Sets what differs between From and To. */
	void SetDifferences(const FProperty* Property, const void* From, const void* To, void* Value)
	{
		if (Property->Identical(From, To))
		{
			return;
		}
		if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
		{
			for (TFieldIterator<FProperty> It(Struct->Struct); It; ++It)
			{
				SetDifferences(*It, It->ContainerPtrToValuePtr<void>(From), It->ContainerPtrToValuePtr<void>(To),
					It->ContainerPtrToValuePtr<void>(Value));
			}
			return;
		}
		const FArrayProperty* Array = CastField<FArrayProperty>(Property);
		if (!Array || FScriptArrayHelper(Array, From).Num() != FScriptArrayHelper(Array, To).Num())
		{
			Property->CopyCompleteValue(Value, To);
			return;
		}
		FScriptArrayHelper Elements(Array, Value);
		for (int32 Index = 0; Index < FScriptArrayHelper(Array, To).Num() && Index < Elements.Num(); ++Index)
		{
			SetDifferences(Array->Inner, FScriptArrayHelper(Array, From).GetRawPtr(Index),
				FScriptArrayHelper(Array, To).GetRawPtr(Index), Elements.GetRawPtr(Index));
		}
	}

	void* GetValue(const FPropertyValue& Copy, UObject* Object)
	{
		return Copy.GetProperty()->ContainerPtrToValuePtr<void>(static_cast<void*>(Object));
	}
}

FObjectRecord::FObjectRecord(UObject* InObject, bool bInSpawned) : Object(InObject), bSpawned(bInSpawned)
{
	for (TFieldIterator<FProperty> It(bSpawned ? nullptr : Object->GetClass()); It; ++It)
	{
		Before.emplace_back(*It, It->ContainerPtrToValuePtr<void>(static_cast<void*>(Object)));
	}
}

bool FObjectRecord::Finish()
{
	std::vector<FPropertyValue> All;
	All.swap(Before);
	for (FPropertyValue& Copy : All)
	{
		if (GetObject() && !Copy.GetProperty()->Identical(Copy.Get(), GetValue(Copy, Object)))
		{
			After.emplace_back(Copy.GetProperty(), GetValue(Copy, Object));
			Before.push_back(MoveTemp(Copy));
		}
	}
	const bool bDone = GetObject() && (bSpawned || !Before.empty());
	if (bDone)
	{
		Object->MarkPackageDirty();
	}
	return bDone;
}

void FObjectRecord::Apply(bool bUndo)
{
	if (!GetObject())
	{
		return;
	}
	if (bSpawned)
	{
		// The other actors keep their places, as when one is destroyed.
		AActor* Actor = static_cast<AActor*>(Object);
		TArray<AActor*>& Actors = Actor->GetLevel()->Actors;
		Place = bUndo ? Actors.Find(Actor) : Place;
		Actors[Place] = bUndo ? nullptr : Actor;
	}
	for (SIZE_T Index = 0; Index < Before.size(); ++Index)
	{
		const FPropertyValue& From = (bUndo ? After : Before)[Index];
		const FPropertyValue& To = (bUndo ? Before : After)[Index];
		SetDifferences(To.GetProperty(), From.Get(), To.Get(), GetValue(To, Object));
	}
}

void FObjectRecord::Notify(bool bUndo) const
{
	if (!GetObject())
	{
		return;
	}
	Object->MarkPackageDirty();
	if (bSpawned && bUndo)
	{
		GEditor->SelectActor(static_cast<AActor*>(Object), false, true);
	}
	else
	{
		Object->PostEditUndo();
	}
}

void FObjectRecord::Forget() const
{
	if (bSpawned && GetObject())
	{
		Object->MarkPendingKill();
	}
}

bool FObjectRecord::Covers(const UObject* InObject) const
{
	return GetObject() && (Object == InObject || (bSpawned && InObject->IsIn(Object)));
}

UObject* FObjectRecord::GetObject() const
{
	const UObject* Outer = Object;
	while (IsValid(Outer) && Outer->GetOuter())
	{
		Outer = Outer->GetOuter();
	}
	return IsValid(Outer) ? Object : nullptr;
}

void FObjectRecord::AddReferencedObjects(FReferenceCollector& Collector)
{
	// A part of a destroyed object would keep that one from the collector.
	Object = GetObject();
	Collector.AddReferencedObject(Object);
	for (const std::vector<FPropertyValue>* Values : {&Before, &After})
	{
		for (const FPropertyValue& Value : *Values)
		{
			Value.GetProperty()->CollectReferences(Value.Get(), Collector, nullptr);
		}
	}
}
