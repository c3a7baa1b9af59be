// Copyright Corvane. MIT License.
#include <algorithm>
#include <vector>

#include "IntrinsicClasses.h"
#include "ObjectConstruction.h"
#include "ObjectTable.h"
#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"

namespace
{
	bool bCollecting = false;

	std::vector<FGCObject*>& GetHolders()
	{
		// Never destroyed: holders with static storage unregister at the very end of the program.
		static std::vector<FGCObject*>* const Holders = new std::vector<FGCObject*>();
		return *Holders;
	}

	/** Marks what can be reached, and clears the references to what is pending kill. */
	class FMarker : public FReferenceCollector
	{
	public:
		explicit FMarker(EObjectFlags InKeepFlags) : KeepFlags(InKeepFlags) {}

		void MarkAll()
		{
			for (FObjectTable::FSlot& Slot : FObjectTable::Get().GetSlots())
			{
				Slot.bReachable = false;
			}
			for (const FObjectTable::FSlot& Slot : FObjectTable::Get().GetSlots())
			{
				if (Slot.Object && IsRoot(*Slot.Object))
				{
					Mark(Slot.Object);
				}
			}
			for (FGCObject* Holder : GetHolders())
			{
				Holder->AddReferencedObjects(*this);
			}
			while (!Pending.empty())
			{
				UObject* const Object = Pending.back();
				Pending.pop_back();
				VisitReferences(Object);
			}
		}

	protected:
		virtual void HandleObjectReference(UObject*& InObject, const UObject*, const FProperty*) override
		{
			if (InObject && InObject->IsPendingKill())
			{
				InObject = nullptr;
			}
			Mark(InObject);
		}

	private:
		bool IsRoot(const UObject& Object) const
		{
			if (Object.IsRooted())
			{
				return true;
			}
			const EObjectFlags RootFlags = KeepFlags | RF_ClassDefaultObject | RF_ArchetypeObject;
			return Object.HasAnyFlags(RootFlags) && !Object.IsPendingKill();
		}

		void Mark(UObject* Object)
		{
			if (Object && !FObjectTable::Get().GetSlot(Object).bReachable)
			{
				FObjectTable::Get().GetSlot(Object).bReachable = true;
				Pending.push_back(Object);
			}
		}

		void VisitReferences(UObject* Object)
		{
			// An object can't be without its outer and its class, even when those are pending kill.
			Mark(Object->GetOuter());
			Mark(Object->GetClass());
			Object->GetClass()->CollectReferences(Object, *this, Object);
			Object->GetClass()->ClassAddReferencedObjects(Object, *this);
		}

		EObjectFlags KeepFlags;
		std::vector<UObject*> Pending;
	};

	/** The objects may look at each other in BeginDestroy, but not in their destructors. */
	void DestroyTogether(const std::vector<UObject*>& Dying)
	{
		for (const UObject* Object : Dying)
		{
			FObjectTable::Get().GetSlot(Object).bDying = true;
		}
		for (UObject* Object : Dying)
		{
			Object->BeginDestroy();
		}
		for (UObject* Object : Dying)
		{
			FObjectTable::Get().RemoveName(Object);
		}
		for (UObject* Object : Dying)
		{
			FObjectTable::Get().Destroy(Object);
		}
	}
}

FGCObject::FGCObject()
{
	GetHolders().push_back(this);
}

FGCObject::FGCObject(const FGCObject&) : FGCObject() {}

FGCObject::~FGCObject()
{
	std::vector<FGCObject*>& Holders = GetHolders();
	Holders.erase(std::find(Holders.begin(), Holders.end(), this));
}

void CollectGarbage(EObjectFlags KeepFlags)
{
	check(!bCollecting);
	checkf(!FObjectConstruction::GetCurrent(), TEXT("Garbage is never collected within a constructor"));
	bCollecting = true;
	FMarker(KeepFlags).MarkAll();
	std::vector<UObject*> Dying;
	for (const FObjectTable::FSlot& Slot : FObjectTable::Get().GetSlots())
	{
		if (Slot.Object && !Slot.bReachable)
		{
			Dying.push_back(Slot.Object);
		}
	}
	DestroyTogether(Dying);
	bCollecting = false;
}

void StaticExit()
{
	std::vector<UObject*> Instances;
	std::vector<UObject*> Types;
	for (const FObjectTable::FSlot& Slot : FObjectTable::Get().GetSlots())
	{
		if (Slot.Object)
		{
			(Slot.Object->IsA<UStruct>() ? Types : Instances).push_back(Slot.Object);
		}
	}
	if (Instances.empty() && Types.empty())
	{
		return;
	}
	bCollecting = true;
	DestroyTogether(Instances);
	// Destructors need no class, but the metaclasses come first in the table, so the types go in the reverse order.
	std::reverse(Types.begin(), Types.end());
	DestroyTogether(Types);
	FIntrinsicClasses::Get().Reset();
	FObjectTable::ReleaseDeadMemory();
	bCollecting = false;
}
