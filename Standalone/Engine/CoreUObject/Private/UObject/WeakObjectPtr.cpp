// Copyright Corvane. MIT License.
#include "UObject/WeakObjectPtr.h"

#include "ObjectTable.h"

FWeakObjectPtr::FWeakObjectPtr(const UObject* Object)
{
	if (Object)
	{
		ObjectIndex = static_cast<int32>(Object->GetUniqueID());
		SerialNumber = FObjectTable::Get().GetSlot(Object).SerialNumber;
	}
}

UObject* FWeakObjectPtr::Get(bool bEvenIfPendingKill) const
{
	const FObjectTable::FSlot* const Slot = FObjectTable::Get().FindSlot(ObjectIndex, SerialNumber);
	if (!Slot || Slot->bDying)
	{
		return nullptr;
	}
	return bEvenIfPendingKill || !Slot->Object->IsPendingKill() ? Slot->Object : nullptr;
}
