// Copyright Corvane. MIT License.
#pragma once

#include "UObject/UnrealType.h"

#include <memory>

/** A copy of a value of any reflected type, outside of an object. It may be moved, but not copied. */
class FPropertyValue
{
public:
	FPropertyValue(const FProperty* Property, const void* Value)
		: Memory(::operator new(static_cast<SIZE_T>(Property->ElementSize)), FDestroyer{Property})
	{
		Property->InitializeValue(Memory.get());
		Property->CopyCompleteValue(Memory.get(), Value);
	}

	const FProperty* GetProperty() const { return Memory.get_deleter().Property; }
	void* Get() const { return Memory.get(); }

private:
	struct FDestroyer
	{
		void operator()(void* Value) const
		{
			Property->DestroyValue(Value);
			::operator delete(Value);
		}

		const FProperty* Property;
	};

	std::unique_ptr<void, FDestroyer> Memory;
};
