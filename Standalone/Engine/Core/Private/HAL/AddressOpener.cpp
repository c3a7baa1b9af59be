// Copyright Corvane. MIT License.
#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include "Standalone/AddressOpener.h"

namespace
{
	/** Blanks, line ends, control and format characters, lone surrogates: what nobody can see has no place here. */
	bool HasUnseenCharacter(const FString& Text)
	{
		for (int32 Index = 0; Index < Text.Len();)
		{
			UChar32 Character;
			U16_NEXT(*Text, Index, Text.Len(), Character);
			if ((U_GET_GC_MASK(Character) & (U_GC_C_MASK | U_GC_Z_MASK)) != 0)
			{
				return true;
			}
		}
		return false;
	}

	/** The part up to the path, without user and port. */
	FString GetHost(const FString& AfterScheme)
	{
		int32 End = 0;
		int32 Ignored;
		while (End < AfterScheme.Len() && !FString(TEXT("/?#\\")).FindChar(AfterScheme[End], Ignored))
		{
			++End;
		}
		const FString Authority = AfterScheme.Left(End);
		const FString Host =
			Authority.RightChop(Authority.Find(TEXT("@"), ESearchCase::CaseSensitive, ESearchDir::FromEnd) + 1);
		return Host.StartsWith(TEXT(":")) ? FString() : Host;
	}
}

bool FAddressOpener::IsAllowed(const FString& Address, FString* OutReason)
{
	const bool bWeb = Address.StartsWith(TEXT("http://")) || Address.StartsWith(TEXT("https://"));
	const TCHAR* const Reason = !bWeb ? TEXT("only http:// and https:// addresses are")
		: HasUnseenCharacter(Address) ? TEXT("it holds a blank or another character that can't be seen")
		: GetHost(Address.RightChop(Address.Find(TEXT("://")) + 3)).IsEmpty() ? TEXT("it names no host")
																			  : nullptr;
	if (Reason && OutReason)
	{
		*OutReason = Reason;
	}
	return Reason == nullptr;
}
