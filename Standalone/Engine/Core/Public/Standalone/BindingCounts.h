// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/**
 * How many bindings there are to what: a binding that nobody removes shows here. The real engine counts none. Bindings
 * are made and dropped on the game thread only.
 */
class CORE_API FBindingCounts
{
public:
	/**
	 * Bindings to methods of that type, in whatever delegates they are.
	 * @param MethodType as "void (FThing::*)(bool)".
	 */
	static int32 Count(const ANSICHAR* MethodType);

	/** The number of one kind of binding, the same for all modules. Kind names its type. */
	static int32& Find(const ANSICHAR* Kind);
};

/** Counts itself, as a part of each binding of one type of callee. */
template <typename CalleeType>
struct TCountedBinding
{
	TCountedBinding() { ++GetCount(); }
	TCountedBinding(const TCountedBinding&) = delete;
	TCountedBinding& operator=(const TCountedBinding&) = delete;
	~TCountedBinding() { --GetCount(); }

private:
	static int32& GetCount()
	{
		static int32& Count = FBindingCounts::Find(__PRETTY_FUNCTION__);
		return Count;
	}
};
