// Copyright Corvane. MIT License.
#include <deque>
#include <string>
#include <unordered_map>

#include "UObject/NameTypes.h"

namespace
{
	/** All spellings ever used, each with the number of its first spelling in any case. */
	class FNameTable
	{
	public:
		FNameTable() { Add(TEXT("None")); }
		/** The spelling's number, or INDEX_NONE. */
		int32 Find(const std::u16string& Spelling) const
		{
			const auto Found = BySpelling.find(Spelling);
			return Found == BySpelling.end() ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found->second);
		}
		/** True if the name is known in any spelling. */
		bool IsKnown(const std::u16string& Spelling) const { return ByFolded.count(Fold(Spelling)) != 0; }
		uint32 Add(const std::u16string& Spelling)
		{
			const uint32 NewIndex = static_cast<uint32>(Spellings.size());
			const uint32 Comparison = ByFolded.emplace(Fold(Spelling), NewIndex).first->second;
			Spellings.push_back({Spelling, Comparison});
			BySpelling.emplace(Spelling, NewIndex);
			return NewIndex;
		}
		const std::u16string& GetSpelling(uint32 Index) const { return Spellings[Index].Text; }
		uint32 GetComparison(uint32 Index) const { return Spellings[Index].Comparison; }

	private:
		static std::u16string Fold(std::u16string Spelling)
		{
			for (TCHAR& Char : Spelling)
			{
				Char = FChar::ToLower(Char);
			}
			return Spelling;
		}

		struct FEntry
		{
			std::u16string Text;
			uint32 Comparison;
		};

		std::deque<FEntry> Spellings;
		std::unordered_map<std::u16string, uint32> BySpelling;
		std::unordered_map<std::u16string, uint32> ByFolded;
	};

	FNameTable& GetNameTable()
	{
		// Never destroyed: names are read while other objects of the process end.
		static FNameTable* Table = new FNameTable;
		return *Table;
	}

	/** Splits "Name_12" into the plain name's length and 12 + 1; a number with a leading zero belongs to the name. */
	int32 SplitNumber(const FString& Name, int32& OutNumber)
	{
		constexpr int32 MaxDigits = 9;
		int32 First = Name.Len();
		while (First > 0 && Name[First - 1] >= TEXT('0') && Name[First - 1] <= TEXT('9'))
		{
			--First;
		}
		const int32 Digits = Name.Len() - First;
		const bool bLeadingZero = Digits > 1 && Name[First] == TEXT('0');
		OutNumber = 0;
		if (Digits == 0 || Digits > MaxDigits || bLeadingZero || First < 2 || Name[First - 1] != TEXT('_'))
		{
			return Name.Len();
		}
		for (int32 Index = First; Index < Name.Len(); ++Index)
		{
			OutNumber = OutNumber * 10 + (Name[Index] - TEXT('0'));
		}
		++OutNumber;
		return First - 1;
	}

	/** Whether the character is one of those that stay together in a displayed name: "HTTP", "16". */
	bool StartsRun(TCHAR Char)
	{
		return (Char >= TEXT('A') && Char <= TEXT('Z')) || (Char >= TEXT('0') && Char <= TEXT('9'));
	}
}

FName::FName(const TCHAR* Name, EFindName FindType)
{
	Init(FString(Name), FindType);
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
{
	Init(FString(Name), FindType);
}

void FName::Init(const FString& Name, EFindName FindType)
{
	checkf(Name.Len() < NAME_SIZE, TEXT("FName's %d max length exceeded. Got %d characters excluding null-terminator."),
		NAME_SIZE - 1, Name.Len());
	if (Name.IsEmpty())
	{
		return;
	}
	int32 InNumber = 0;
	const int32 PlainLength = SplitNumber(Name, InNumber);
	const std::u16string Plain(*Name, static_cast<SIZE_T>(PlainLength));
	FNameTable& Table = GetNameTable();
	const int32 Found = Table.Find(Plain);
	if (Found == INDEX_NONE && FindType == FNAME_Find && !Table.IsKnown(Plain))
	{
		return;
	}
	DisplayIndex = Found != INDEX_NONE ? static_cast<uint32>(Found) : Table.Add(Plain);
	ComparisonIndex = Table.GetComparison(DisplayIndex);
	Number = InNumber;
}

FString FName::GetPlainNameString() const
{
	return FString(GetNameTable().GetSpelling(DisplayIndex).c_str());
}

FString FName::NameToDisplayString(const FString& InDisplayName, const bool bIsBool)
{
	const bool bPrefixed =
		bIsBool && InDisplayName.Len() > 1 && InDisplayName[0] == TEXT('b') && StartsRun(InDisplayName[1]);
	FString Result;
	bool bInRun = false;
	bool bWordBegins = true;
	for (int32 Index = bPrefixed ? 1 : 0; Index < InDisplayName.Len(); ++Index)
	{
		const TCHAR Char = InDisplayName[Index];
		bWordBegins |= Char == TEXT('_') || (StartsRun(Char) && !bInRun);
		bInRun = StartsRun(Char);
		if (Char == TEXT('_'))
		{
			continue;
		}
		if (bWordBegins && !Result.IsEmpty() && Result[Result.Len() - 1] != TEXT(' '))
		{
			Result.AppendChar(TEXT(' '));
		}
		const bool bLower = Char >= TEXT('a') && Char <= TEXT('z');
		Result.AppendChar(bWordBegins && bLower ? static_cast<TCHAR>(Char - (TEXT('a') - TEXT('A'))) : Char);
		bWordBegins = false;
	}
	return Result;
}

FString FName::ToString() const
{
	return Number == 0 ? GetPlainNameString() : GetPlainNameString() + TEXT("_") + FString::FromInt(Number - 1);
}
