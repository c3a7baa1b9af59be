// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Internationalization/Text.h"

/** Under which heading editors offer a show flag. */
enum EShowFlagGroup : int32
{
	SFG_Normal = 0,
	SFG_Advanced = 1,
	SFG_PostProcess = 2,
	SFG_CollisionModes = 3,
	SFG_Developer = 4,
	SFG_Visualize = 5,
	SFG_LightTypes = 6,
	SFG_LightingComponents = 7,
	SFG_LightingFeatures = 8,
	SFG_Hidden = 9,
	SFG_Transient = 10,
	SFG_Max = 11
};

/** What a set of show flags begins with. */
enum EShowFlagInitMode
{
	/** As in a game's view. */
	ESFIM_Game,
	/** All off. */
	ESFIM_All0
};

/**
 * What is drawn in a view: a set of flags that are on or off. A flag is known by its index: the built-in ones come
 * first, those that modules register at run time follow from SF_FirstCustom on. Names are found without regard to ASCII
 * case.
 */
struct ENGINE_API FEngineShowFlags
{
	enum EShowFlag : uint32
	{
#define SHOW_FLAG(Name, Group, DisplayName, bDefaultInGame) SF_##Name,
#include "ShowFlagsValues.inl"
#undef SHOW_FLAG
		/** Also the number of built-in flags. */
		SF_FirstCustom
	};

	/** A custom flag, counted from zero. */
	enum class ECustomShowFlag : uint32
	{
		First = 0
	};

	explicit FEngineShowFlags(EShowFlagInitMode InInitMode) : InitMode(InInitMode) {}

	/** Fatal for an index that is no flag's. A flag that was never set has its default. */
	bool GetSingleFlag(uint32 Index) const;
	void SetSingleFlag(uint32 Index, bool bSet);

	/** The flag's index, or INDEX_NONE. */
	static int32 FindIndexByName(const TCHAR* Name);
	/** The flag's name as it is spelled in code; empty for an index that is no flag's. */
	static FString FindNameByIndex(uint32 InIndex);
	/** The flag's group; SFG_Normal for an unknown name. */
	static EShowFlagGroup FindShowFlagGroup(const TCHAR* Name);
	/** The flag's name for users. An unknown name leaves OutText as it is. */
	static void FindShowFlagDisplayName(const FString& InName, FText& OutText);
	/** Adds a flag for as long as the process runs. Fatal for a name that is a flag's already. */
	static ECustomShowFlag RegisterCustomShowFlag(
		const TCHAR* Name, bool DefaultEnabled, EShowFlagGroup Group, FText DisplayName);

private:
	EShowFlagInitMode InitMode;
	/** One a flag, up to the last one that was ever set. */
	TArray<uint8> Flags;
};
