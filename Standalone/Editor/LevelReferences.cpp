// Copyright Corvane. MIT License.
#include "LevelReferences.h"

bool FLevelReferences::Add(FName Key, UClass* Class)
{
	if (Targets.Contains(Key))
	{
		return false;
	}
	FTarget Target;
	Target.Class = Class;
	Targets.Add(Key, Target);
	return true;
}

void FLevelReferences::Resolve(FName Key, UObject* Object)
{
	FTarget* Target = Targets.Find(Key);
	check(Target != nullptr);
	Target->Object = Object;
}

const FLevelReferences::FTarget* FLevelReferences::Find(FName Key) const
{
	return Targets.Find(Key);
}
