// Copyright Corvane. MIT License.
#include "DetailCustomisations/ActiveSenderNameOptions.h"

#include "DetailCustomisations/ExactNameSearch.h"
#include "ZAVSpoutNames.h"

namespace
{
	bool IsSameName(const FString& Lhs, const FString& Rhs)
	{
		return Lhs.Equals(Rhs, ESearchCase::CaseSensitive);
	}
}

FActiveSenderNameOptions& FActiveSenderNameOptions::Get()
{
	// A shared reference in a function: made once even if two threads come first together.
	static const TSharedRef<FActiveSenderNameOptions> Instance = MakeShared<FActiveSenderNameOptions>();
	return Instance.Get();
}

TArray<TSharedPtr<FString>> FActiveSenderNameOptions::RefreshOptions(FString CurrentName, bool bUseFirstAvailable)
{
	const TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	if (Options.Num() == 0)
	{
		Options.Add(MakeShared<FString>(FirstAvailableOption));
	}
	bool bCurrentIsActive = false;
	if (IsUpToDate(Names, CurrentName, bCurrentIsActive))
	{
		// Every text of every panel asks for this again and again, mostly with nothing changed.
		TArray<TSharedPtr<FString>> Before = Options;
		const int32 CurrentBefore = CurrentOption;
		OnLostStateChanged.Broadcast(!bUseFirstAvailable && !bCurrentIsActive);
		if (Options == Before)
		{
			CurrentOption = CurrentBefore;
			return Before;
		}
	}
	else
	{
		bCurrentIsActive = AddActiveNames(Names, CurrentName);
		OnLostStateChanged.Broadcast(!bUseFirstAvailable && !bCurrentIsActive);
	}

	const bool bCurrentIsListed = DropInactiveOptions(Names, CurrentName);
	if (!bCurrentIsListed && !CurrentName.Equals(FirstAvailableOption, ESearchCase::CaseSensitive))
	{
		Options.Add(MakeShared<FString>(CurrentName));
		NameOfOption.Add(INDEX_NONE);
	}
	CurrentOption = INDEX_NONE;
	FindCurrentOption(CurrentName);
	return Options;
}

bool FActiveSenderNameOptions::AddActiveNames(const TArray<FString>& Names, const FString& CurrentName)
{
	// From 1 on: a sender that is called like the first entry is listed all the same.
	const auto GetOption = [this](int32 Index) -> const FString& { return *Options[Index]; };
	TExactNameSearch<decltype(GetOption)> Listed(GetOption, 1);
	bool bCurrentIsActive = false;
	for (const FString& Name : Names)
	{
		bCurrentIsActive = bCurrentIsActive || IsSameName(Name, CurrentName);
		if (Listed.Find(Name, Options.Num()) == INDEX_NONE)
		{
			Options.Add(MakeShared<FString>(Name));
		}
	}
	return bCurrentIsActive;
}

bool FActiveSenderNameOptions::DropInactiveOptions(const TArray<FString>& Names, const FString& CurrentName)
{
	const auto GetName = [&Names](int32 Index) -> const FString& { return Names[Index]; };
	TExactNameSearch<decltype(GetName)> Active(GetName, 0);
	NameOfOption.Reset();
	TArray<uint8> HasOption;
	HasOption.SetNum(Names.Num());
	bool bCurrentIsListed = false;
	// One pass that moves what stays up, so that thousands of senders may stop at once.
	int32 NumKept = 1;
	for (int32 Index = 1; Index < Options.Num(); ++Index)
	{
		const int32 NameIndex = Active.Find(*Options[Index], Names.Num());
		const bool bIsCurrent = IsSameName(*Options[Index], CurrentName);
		bCurrentIsListed = bCurrentIsListed || bIsCurrent;
		if (NameIndex != INDEX_NONE)
		{
			HasOption[NameIndex] = 1;
		}
		if (NameIndex != INDEX_NONE || bIsCurrent)
		{
			Options[NumKept] = Options[Index];
			++NumKept;
			NameOfOption.Add(NameIndex);
		}
	}
	if (NumKept < Options.Num())
	{
		Options.RemoveAt(NumKept, Options.Num() - NumKept);
	}
	// Of two senders of one name only one is found.
	NumNames = !HasOption.Contains(0) ? Names.Num() : static_cast<int32>(INDEX_NONE);
	return bCurrentIsListed;
}

const TSharedPtr<FString>* FActiveSenderNameOptions::GetCurrentOption() const
{
	return Options.IsValidIndex(CurrentOption) ? &Options[CurrentOption] : nullptr;
}

void FActiveSenderNameOptions::FindCurrentOption(const FString& CurrentName)
{
	// Mostly it is where it was. Only the first entry can have become another one of that text and go before it.
	if (!Options.IsValidIndex(CurrentOption) || !IsSameName(*Options[CurrentOption], CurrentName) ||
		IsSameName(*Options[0], CurrentName))
	{
		CurrentOption = Options.IndexOfByPredicate(
			[&CurrentName](const TSharedPtr<FString>& Option) { return IsSameName(*Option, CurrentName); });
	}
}

const FText& FActiveSenderNameOptions::GetLabel(const FString& Text)
{
	if (!IsSameName(LastLabel.ToString(), Text))
	{
		LastLabel = FText::FromString(Text);
	}
	return LastLabel;
}

bool FActiveSenderNameOptions::IsUpToDate(
	const TArray<FString>& Names, const FString& CurrentName, bool& OutCurrentIsActive)
{
	if (Options.Num() != NameOfOption.Num() + 1 || Names.Num() != NumNames)
	{
		return false;
	}
	// Each name had an option: if all options still are the names that they were, all names still have one.
	bool bReversed = false;
	for (int32 Index = 1; Index < Options.Num(); ++Index)
	{
		const FString& Option = *Options[Index];
		const int32 Forwards = NameOfOption[Index - 1];
		if (Forwards == INDEX_NONE)
		{
			if (!IsSameName(Option, CurrentName))
			{
				return false;
			}
			continue;
		}
		const int32 Backwards = NumNames - 1 - Forwards;
		if (!IsSameName(Option, Names[bReversed ? Backwards : Forwards]))
		{
			// The first one tells in which order the names come.
			if (Index > 1 || !IsSameName(Option, Names[Backwards]))
			{
				return false;
			}
			bReversed = true;
		}
	}
	FindCurrentOption(CurrentName);
	if (CurrentOption > 0)
	{
		OutCurrentIsActive = NameOfOption[CurrentOption - 1] != INDEX_NONE;
	}
	// The first entry's text is not to be listed as a name, but a sender may be called like that; and a string that was
	// changed may have become what a sender is called.
	OutCurrentIsActive = OutCurrentIsActive ||
		Names.ContainsByPredicate([&CurrentName](const FString& Name) { return IsSameName(Name, CurrentName); });
	return CurrentOption > 0 || IsSameName(CurrentName, FirstAvailableOption);
}
