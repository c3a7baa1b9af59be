// Copyright Corvane. MIT License.
#include "UObject/Package.h"

void UPackage::SetDirtyFlag(bool bIsDirty)
{
	if (this != GetTransientPackage())
	{
		bDirty = bIsDirty;
	}
}
