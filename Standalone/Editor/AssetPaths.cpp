// Copyright Corvane. MIT License.
#include "AssetPaths.h"

namespace
{
	bool IsForbidden(TCHAR Char)
	{
		return Char <= TEXT(' ') || (Char >= 0x7F && Char < 0xA0) ||
			FString(TEXT("\"',\\:*?<>|.&!~@#(){}[]=;^%$`")).Contains(FString(1, &Char), ESearchCase::CaseSensitive);
	}
}

bool FAssetPaths::IsValid(FName Path)
{
	const FString Text = Path.ToString();
	const FString Root = TEXT("/Game/");
	if (!Text.StartsWith(Root) || Text.EndsWith(TEXT("/")) || Text.Contains(TEXT("//")))
	{
		return false;
	}
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		if (IsForbidden(Text[Index]))
		{
			return false;
		}
	}
	return true;
}

FName FAssetPaths::GetAssetName(FName Path)
{
	const FString Text = Path.ToString();
	int32 Slash = INDEX_NONE;
	return Text.FindLastChar(TEXT('/'), Slash) ? FName(*Text.RightChop(Slash + 1)) : Path;
}
