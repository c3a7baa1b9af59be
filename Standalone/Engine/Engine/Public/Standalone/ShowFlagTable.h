// Copyright Corvane. MIT License.
#pragma once

#include "ShowFlags.h"
#include "Templates/UniquePtr.h"

struct FShowFlagRegistry;

/** For tests: other built-in show flags than the engine's, for as long as it lives. Custom flags begin anew. */
class ENGINE_API FShowFlagTable
{
public:
	struct FFlag
	{
		/** Empty for an index that is no flag's. */
		FString Name;
		EShowFlagGroup Group;
		/** The engine's own have the namespace "UnrealEd", and for key the flag's name and "SF". */
		FText DisplayName;
		bool bDefaultInGame;
	};

	/** At most SF_FirstCustom flags; the indices that are left over are no flags. */
	explicit FShowFlagTable(const TArray<FFlag>& BuiltIn);
	/** Puts the flags back that were there before, custom ones included. */
	~FShowFlagTable();
	FShowFlagTable(const FShowFlagTable&) = delete;
	FShowFlagTable& operator=(const FShowFlagTable&) = delete;

	/** The engine's own flags, for a table that differs in some. */
	static TArray<FFlag> GetEngineFlags();

private:
	TUniquePtr<FShowFlagRegistry> Former;
};
