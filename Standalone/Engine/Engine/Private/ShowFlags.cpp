// Copyright Corvane. MIT License.
#include <deque>
#include <string_view>
#include <unordered_map>

#include "ShowFlags.h"

#include "Internationalization/Internationalization.h"
#include "Standalone/ShowFlagTable.h"

/** The flags that there are, by index and by name. */
struct FShowFlagRegistry
{
	/** Hashes and compares views, so that a search needs no string of its own. */
	struct FAnyCase
	{
		SIZE_T operator()(std::u16string_view Name) const
		{
			SIZE_T Hash = 0;
			for (const TCHAR Char : Name)
			{
				Hash = Hash * 31 + FChar::ToLower(Char);
			}
			return Hash;
		}
		bool operator()(std::u16string_view A, std::u16string_view B) const
		{
			const auto IsSame = [](TCHAR Of, TCHAR In) { return FChar::ToLower(Of) == FChar::ToLower(In); };
			return std::equal(A.begin(), A.end(), B.begin(), B.end(), IsSame);
		}
	};

	explicit FShowFlagRegistry(const TArray<FShowFlagTable::FFlag>& BuiltIn)
	{
		check(BuiltIn.Num() <= static_cast<int32>(FEngineShowFlags::SF_FirstCustom));
		for (const FShowFlagTable::FFlag& Flag : BuiltIn)
		{
			Add(Flag);
		}
		Flags.resize(FEngineShowFlags::SF_FirstCustom);
	}

	uint32 Add(const FShowFlagTable::FFlag& Flag)
	{
		const uint32 Index = static_cast<uint32>(Flags.size());
		Flags.push_back(Flag);
		ByName.emplace(*Flags.back().Name, Index);
		return Index;
	}
	/** Null for an index that is no flag's. */
	const FShowFlagTable::FFlag* Find(uint32 Index) const
	{
		return Index < Flags.size() && !Flags[Index].Name.IsEmpty() ? &Flags[Index] : nullptr;
	}
	int32 FindIndex(const TCHAR* Name) const
	{
		const auto Found = ByName.find(Name);
		return Found == ByName.end() || !*Name ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found->second);
	}
	const FShowFlagTable::FFlag* Find(const TCHAR* Name) const { return Find(static_cast<uint32>(FindIndex(Name))); }

	/** The names stay where they are while flags are added. */
	std::deque<FShowFlagTable::FFlag> Flags;
	std::unordered_map<std::u16string_view, uint32, FAnyCase, FAnyCase> ByName;
};

namespace
{
	TUniquePtr<FShowFlagRegistry>& GetRegistry()
	{
		static TUniquePtr<FShowFlagRegistry> Registry = MakeUnique<FShowFlagRegistry>(FShowFlagTable::GetEngineFlags());
		return Registry;
	}
}

bool FEngineShowFlags::GetSingleFlag(uint32 Index) const
{
	const FShowFlagTable::FFlag* Flag = GetRegistry()->Find(Index);
	checkf(Flag != nullptr, TEXT("There is no show flag %u"), Index);
	const int32 Place = static_cast<int32>(Index);
	return Flags.IsValidIndex(Place) ? Flags[Place] != 0 : InitMode == ESFIM_Game && Flag->bDefaultInGame;
}

void FEngineShowFlags::SetSingleFlag(uint32 Index, bool bSet)
{
	checkf(GetRegistry()->Find(Index) != nullptr, TEXT("There is no show flag %u"), Index);
	for (uint32 Place = static_cast<uint32>(Flags.Num()); Place <= Index; ++Place)
	{
		Flags.Add(GetRegistry()->Find(Place) && GetSingleFlag(Place));
	}
	Flags[static_cast<int32>(Index)] = bSet;
}

int32 FEngineShowFlags::FindIndexByName(const TCHAR* Name)
{
	return GetRegistry()->FindIndex(Name);
}

FString FEngineShowFlags::FindNameByIndex(uint32 InIndex)
{
	const FShowFlagTable::FFlag* Flag = GetRegistry()->Find(InIndex);
	return Flag ? Flag->Name : FString();
}

EShowFlagGroup FEngineShowFlags::FindShowFlagGroup(const TCHAR* Name)
{
	const FShowFlagTable::FFlag* Flag = GetRegistry()->Find(Name);
	return Flag ? Flag->Group : SFG_Normal;
}

void FEngineShowFlags::FindShowFlagDisplayName(const FString& InName, FText& OutText)
{
	if (const FShowFlagTable::FFlag* Flag = GetRegistry()->Find(*InName))
	{
		OutText = Flag->DisplayName;
	}
}

FEngineShowFlags::ECustomShowFlag FEngineShowFlags::RegisterCustomShowFlag(
	const TCHAR* Name, bool DefaultEnabled, EShowFlagGroup Group, FText DisplayName)
{
	checkf(FindIndexByName(Name) == INDEX_NONE, TEXT("There is already a show flag %s"), Name);
	return static_cast<ECustomShowFlag>(
		GetRegistry()->Add({Name, Group, DisplayName, DefaultEnabled}) - SF_FirstCustom);
}

FShowFlagTable::FShowFlagTable(const TArray<FFlag>& BuiltIn) : Former(MakeUnique<FShowFlagRegistry>(BuiltIn))
{
	std::swap(Former, GetRegistry());
}

FShowFlagTable::~FShowFlagTable()
{
	std::swap(Former, GetRegistry());
}

TArray<FShowFlagTable::FFlag> FShowFlagTable::GetEngineFlags()
{
	return {
#define SHOW_FLAG(Name, Group, DisplayName, bDefaultInGame) \
	{#Name, Group, NSLOCTEXT("UnrealEd", #Name "SF", DisplayName), bDefaultInGame},
#include "ShowFlagsValues.inl"
#undef SHOW_FLAG
	};
}
