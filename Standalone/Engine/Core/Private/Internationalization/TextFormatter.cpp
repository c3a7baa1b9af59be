// Copyright Corvane. MIT License.
#include "TextFormatter.h"

namespace
{
	bool IsSpecial(TCHAR Char)
	{
		return Char == TEXT('{') || Char == TEXT('}') || Char == TEXT('`');
	}

	/** The index just behind the token that begins with the brace at Start, or Start if that brace has no partner. */
	int32 FindTokenEnd(const FString& Pattern, int32 Start)
	{
		int32 Index = Start + 1;
		while (Index < Pattern.Len() && !IsSpecial(Pattern[Index]))
		{
			++Index;
		}
		return Index < Pattern.Len() && Pattern[Index] == TEXT('}') ? Index + 1 : Start;
	}

	/** The value that a token such as {0} asks for, or null. */
	const FText* FindArgument(const FString& Pattern, int32 Start, int32 End, const TArray<FText>& Arguments)
	{
		int64 Number = 0;
		for (int32 Index = Start + 1; Index < End - 1; ++Index)
		{
			const int32 Digit = static_cast<int32>(Pattern[Index]) - TEXT('0');
			// Ends the loop long before a long row of digits could overflow.
			if (Digit < 0 || Digit > 9 || Number >= Arguments.Num())
			{
				return nullptr;
			}
			Number = Number * 10 + Digit;
		}
		const bool bHasNumber = End - Start > 2;
		return bHasNumber && Number < Arguments.Num() ? &Arguments[static_cast<int32>(Number)] : nullptr;
	}
}

FString FormatPattern(const FString& Pattern, const TArray<FText>& Arguments)
{
	FString Result;
	Result.Reserve(Pattern.Len());
	for (int32 Index = 0; Index < Pattern.Len(); ++Index)
	{
		const TCHAR Char = Pattern[Index];
		if (Char == TEXT('`') && Index + 1 < Pattern.Len() && IsSpecial(Pattern[Index + 1]))
		{
			Result.AppendChar(Pattern[++Index]);
			continue;
		}
		const int32 TokenEnd = Char == TEXT('{') ? FindTokenEnd(Pattern, Index) : Index;
		if (TokenEnd == Index)
		{
			Result.AppendChar(Char);
			continue;
		}
		const FText* Argument = FindArgument(Pattern, Index, TokenEnd, Arguments);
		Result += Argument ? Argument->ToString() : Pattern.Mid(Index, TokenEnd - Index);
		Index = TokenEnd - 1;
	}
	return Result;
}
