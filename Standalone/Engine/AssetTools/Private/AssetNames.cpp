// Copyright Corvane. MIT License.
#include "AssetNames.h"

#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
	bool IsForbidden(TCHAR Char)
	{
		const bool bIsControl = Char < 0x20 || (Char >= 0x7f && Char < 0xa0);
		int32 Index;
		return bIsControl || FString(TEXT("\"' ,\\:*?<>|.&!~@#(){}[]=;^%$`")).FindChar(Char, Index);
	}

	bool IsDigit(TCHAR Char)
	{
		return Char >= TEXT('0') && Char <= TEXT('9');
	}
}

FString AssetNames::Sanitise(const FString& PackageName)
{
	FString Result = PackageName;
	for (int32 Index = 0; Index < Result.Len(); ++Index)
	{
		if (IsForbidden(Result[Index]))
		{
			Result[Index] = TEXT('_');
		}
	}
	return Result;
}

FString AssetNames::LastPart(const FString& PackageName)
{
	int32 Slash;
	return PackageName.FindLastChar(TEXT('/'), Slash) ? PackageName.RightChop(Slash + 1) : PackageName;
}

bool AssetNames::IsPossible(const FString& PackageName)
{
	return PackageName.Len() < NAME_SIZE && PackageName.StartsWith(TEXT("/")) && !PackageName.EndsWith(TEXT("/")) &&
		!PackageName.Contains(TEXT("//"));
}

bool AssetNames::IsTaken(const FString& PackageName)
{
	UPackage* Package = IsPossible(PackageName) ? FindPackage(nullptr, *PackageName) : nullptr;
	// By content, not by name: an asset called "None" is no name at all and gets one of the object system's.
	TArray<UObject*> Assets;
	if (Package)
	{
		GetObjectsWithOuter(Package, Assets, false);
	}
	return Assets.Num() > 0;
}

FString AssetNames::SplitNumber(const FString& Text, int32& OutNumber)
{
	constexpr int32 MostDigits = 9;
	int32 Start = Text.Len();
	while (Start > 0 && IsDigit(Text[Start - 1]))
	{
		--Start;
	}
	OutNumber = 0;
	if (Text.Len() - Start > MostDigits)
	{
		return Text;
	}
	for (int32 Index = Start; Index < Text.Len(); ++Index)
	{
		OutNumber = OutNumber * 10 + (Text[Index] - TEXT('0'));
	}
	return Text.Left(Start);
}
