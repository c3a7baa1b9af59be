// Copyright Corvane. MIT License.
#pragma once

#include "Containers/UnrealString.h"

/** Names that the engine knows by number. */
enum EName
{
	NAME_None = 0,
};

/** Whether an unknown name is added or gives NAME_None. */
enum EFindName
{
	FNAME_Find,
	FNAME_Add,
};

/** A name's units are at most this many, the closing zero included; a longer name is fatal. */
enum
{
	NAME_SIZE = 1024
};

/**
 * A name in the process-wide name table. Comparison is by number and ignores the case of ASCII letters; each instance
 * keeps the spelling that it was made with. A trailing "_<digits>" without leading zero is stored as a number.
 */
class CORE_API FName
{
public:
	FName() = default;
	FName(EName) {}
	FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	/** The plain name of another one with a number of its own; InNumber is the shown number plus one, 0 for none. */
	FName(const FName& Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex), DisplayIndex(Other.DisplayIndex), Number(InNumber)
	{}

	bool IsNone() const { return ComparisonIndex == 0 && Number == 0; }
	/** As this instance was spelled, number included; "None" for none. */
	FString ToString() const;
	FString GetPlainNameString() const;
	/**
	 * A name from the code as words for the user: "bUseHTTPOutput2" becomes "Use HTTPOutput 2". A word begins at a
	 * capital letter or digit that follows none, and behind an underscore. The b in front of a bool's first capital is
	 * left out.
	 */
	static FString NameToDisplayString(const FString& InDisplayName, const bool bIsBool);
	/** The stored number: the shown one plus one, or 0 for none. */
	int32 GetNumber() const { return Number; }
	bool operator==(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number;
	}
	bool operator!=(const FName& Other) const { return !(*this == Other); }
	/** Alphabetical, ignoring case. */
	bool LexicalLess(const FName& Other) const { return ToString() < Other.ToString(); }
	friend uint32 GetTypeHash(const FName& Name)
	{
		return Name.ComparisonIndex * 31u + static_cast<uint32>(Name.Number);
	}

private:
	void Init(const FString& Name, EFindName FindType);

	uint32 ComparisonIndex = 0;
	uint32 DisplayIndex = 0;
	int32 Number = 0;
};
