// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Class.h"

/** A class that is T or derived from it; any other class reads as null. */
template <class TClass>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(UClass* From) : Class(From) {}

	UClass* Get() const { return Class && Class->IsChildOf(TClass::StaticClass()) ? Class : nullptr; }
	UClass* operator*() const { return Get(); }
	UClass* operator->() const { return Get(); }
	operator UClass*() const { return Get(); }

private:
	UClass* Class = nullptr;
};
