// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

/** A weak pointer to objects of class T. */
template <class T = UObject>
struct TWeakObjectPtr : private FWeakObjectPtr
{
	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t) {}
	template <class U, class = typename std::enable_if<std::is_convertible<U*, const T*>::value>::type>
	TWeakObjectPtr(U* Object) : FWeakObjectPtr(Object)
	{}
	template <class U, class = typename std::enable_if<std::is_convertible<U*, T*>::value>::type>
	TWeakObjectPtr(const TWeakObjectPtr<U>& Other) : FWeakObjectPtr(Other)
	{}

	T* Get() const { return static_cast<T*>(FWeakObjectPtr::Get()); }
	T* Get(bool bEvenIfPendingKill) const { return static_cast<T*>(FWeakObjectPtr::Get(bEvenIfPendingKill)); }
	using FWeakObjectPtr::IsStale;
	using FWeakObjectPtr::IsValid;
	using FWeakObjectPtr::Reset;
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	template <class U>
	bool operator==(const TWeakObjectPtr<U>& Other) const
	{
		return static_cast<const FWeakObjectPtr&>(*this) == static_cast<const FWeakObjectPtr&>(Other);
	}
	template <class U>
	bool operator!=(const TWeakObjectPtr<U>& Other) const
	{
		return !(*this == Other);
	}
	template <class U>
	bool operator==(const U* Other) const
	{
		return Get() == Other;
	}
	template <class U>
	bool operator!=(const U* Other) const
	{
		return Get() != Other;
	}
	friend uint32 GetTypeHash(const TWeakObjectPtr& Pointer)
	{
		return GetTypeHash(static_cast<const FWeakObjectPtr&>(Pointer));
	}

private:
	template <class U>
	friend struct TWeakObjectPtr;
};
