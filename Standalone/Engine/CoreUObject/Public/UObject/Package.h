// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Object.h"

/** What assets and worlds lie in: the outermost object, named like "/Game/CineStream/Main". */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_CLASS(UPackage, UObject, CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)

public:
	/** Whether there are changes to save. The transient package never has any. */
	void SetDirtyFlag(bool bIsDirty);
	bool IsDirty() const { return bDirty; }

private:
	bool bDirty = false;
};
