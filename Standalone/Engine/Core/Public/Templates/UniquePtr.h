// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

#include <memory>

/** Sole owner of an object on the heap, or null. */
template <typename T>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	TUniquePtr(std::nullptr_t) {}
	explicit TUniquePtr(T* Object) : Pointer(Object) {}
	template <typename U>
	TUniquePtr(TUniquePtr<U>&& Other) : Pointer(Other.Release())
	{}
	template <typename U>
	TUniquePtr& operator=(TUniquePtr<U>&& Other)
	{
		Pointer.reset(Other.Release());
		return *this;
	}
	T* Get() const { return Pointer.get(); }
	T* Release() { return Pointer.release(); }
	void Reset(T* Object = nullptr) { Pointer.reset(Object); }
	bool IsValid() const { return Pointer != nullptr; }
	explicit operator bool() const { return IsValid(); }
	T* operator->() const { return Pointer.get(); }
	T& operator*() const { return *Pointer; }

private:
	std::unique_ptr<T> Pointer;
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(std::forward<ArgTypes>(Args)...));
}
