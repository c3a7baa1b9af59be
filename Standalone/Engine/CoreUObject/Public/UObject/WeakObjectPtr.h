// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

class UObject;

/** Refers to an object without keeping it: empty as soon as the object is destroyed, dying or pending kill. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(const UObject* Object);

	UObject* Get() const { return Get(false); }
	/** The object, even if it is pending kill when asked so; null once the collector destroys it. */
	UObject* Get(bool bEvenIfPendingKill) const;
	bool IsValid() const { return Get() != nullptr; }
	/** True if there was an object and now is none. */
	bool IsStale() const { return SerialNumber != 0 && !IsValid(); }
	void Reset() { *this = FWeakObjectPtr(); }
	/** The same object, or both without one. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return (ObjectIndex == Other.ObjectIndex && SerialNumber == Other.SerialNumber) ||
			(!IsValid() && !Other.IsValid());
	}
	bool operator!=(const FWeakObjectPtr& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FWeakObjectPtr& Pointer)
	{
		return static_cast<uint32>(Pointer.ObjectIndex) ^ static_cast<uint32>(Pointer.SerialNumber);
	}

private:
	int32 ObjectIndex = -1;
	/** Of the object among all that had its index; 0 for none. */
	int32 SerialNumber = 0;
};
