// Copyright Corvane. MIT License.
#include "Delegates/Delegate.h"

FDelegateHandle FDelegateHandle::GenerateNewHandle()
{
	static uint64 LastId = 0;
	FDelegateHandle Handle;
	Handle.Id = ++LastId;
	return Handle;
}
