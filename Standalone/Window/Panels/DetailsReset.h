// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

class IPropertyHandle;

/** What the reset arrow beside a value does. */
class FDetailsReset
{
public:
	/**
	 * Whether the value of one of the edited objects is not that of what the object was made from. An element that an
	 * array there does not have is compared with a new one. False for what can't be reset: structures and arrays, what
	 * is read-only, and objects that belong to the edited one.
	 */
	static bool CanReset(const IPropertyHandle& Handle);

	/** Sets that value, of the first object's, for all; one undo step. @return false if there is none. */
	static bool Reset(IPropertyHandle& Handle);
};
