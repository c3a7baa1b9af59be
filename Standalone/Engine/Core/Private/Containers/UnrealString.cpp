// Copyright Corvane. MIT License.
#include <cstdio>
#include <cstring>
#include <locale.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include "Containers/UnrealString.h"

namespace
{
	int32 LengthOf(const TCHAR* Text)
	{
		return Text ? static_cast<int32>(std::char_traits<TCHAR>::length(Text)) : 0;
	}

	bool SameIgnoringCase(const TCHAR* Lhs, const TCHAR* Rhs, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			if (FChar::ToLower(Lhs[Index]) != FChar::ToLower(Rhs[Index]))
			{
				return false;
			}
		}
		return true;
	}

	bool SameUnits(const TCHAR* Lhs, const TCHAR* Rhs, int32 Count, ESearchCase::Type SearchCase)
	{
		// Bytes are compared many at a time, units one by one.
		return SearchCase == ESearchCase::CaseSensitive
			? std::memcmp(Lhs, Rhs, static_cast<SIZE_T>(Count) * sizeof(TCHAR)) == 0
			: SameIgnoringCase(Lhs, Rhs, Count);
	}

	std::string ToUtf8(const TCHAR* Source, int32 Count)
	{
		std::string Result;
		Result.reserve(static_cast<SIZE_T>(Count));
		for (int32 Index = 0; Index < Count;)
		{
			UChar32 CodePoint;
			U16_NEXT(Source, Index, Count, CodePoint);
			if (U_IS_SURROGATE(CodePoint))
			{
				CodePoint = 0xFFFD;
			}
			char Buffer[U8_MAX_LENGTH];
			int32 Length = 0;
			U8_APPEND_UNSAFE(Buffer, Length, CodePoint);
			Result.append(Buffer, static_cast<SIZE_T>(Length));
		}
		return Result;
	}

	std::u16string FromUtf8(const ANSICHAR* Source, int32 Count)
	{
		std::u16string Result;
		Result.reserve(static_cast<SIZE_T>(Count));
		for (int32 Index = 0; Index < Count;)
		{
			UChar32 CodePoint;
			U8_NEXT_OR_FFFD(Source, Index, Count, CodePoint);
			if (CodePoint > 0xFFFF)
			{
				Result.push_back(static_cast<TCHAR>(U16_LEAD(CodePoint)));
				Result.push_back(static_cast<TCHAR>(U16_TRAIL(CodePoint)));
			}
			else
			{
				Result.push_back(static_cast<TCHAR>(CodePoint));
			}
		}
		return Result;
	}

	int32 ClampIndex(int32 Value, int32 Max)
	{
		return Value < 0 ? 0 : (Value > Max ? Max : Value);
	}
}

bool FChar::IsWhitespace(TCHAR Char)
{
	return u_isWhitespace(Char);
}

FString::FString(const TCHAR* Source) : Data(Source ? Source : TEXT("")) {}

FString::FString(const ANSICHAR* Source)
	: Data(Source ? FromUtf8(Source, static_cast<int32>(std::char_traits<ANSICHAR>::length(Source))) : std::u16string())
{}

FString::FString(int32 Count, const TCHAR* Source) : Data(Source, static_cast<SIZE_T>(Count)) {}

TCHAR& FString::operator[](int32 Index)
{
	checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index,
		Len());
	return Data[static_cast<SIZE_T>(Index)];
}

const TCHAR& FString::operator[](int32 Index) const
{
	return const_cast<FString&>(*this)[Index];
}

FString& FString::operator+=(const FString& Other)
{
	Data += Other.Data;
	return *this;
}

FString& FString::AppendChar(TCHAR Char)
{
	Data.push_back(Char);
	return *this;
}

FString operator+(const FString& Lhs, const FString& Rhs)
{
	FString Result;
	Result.Data.reserve(Lhs.Data.size() + Rhs.Data.size());
	Result.Data.append(Lhs.Data).append(Rhs.Data);
	return Result;
}

FString operator/(const FString& Lhs, const FString& Rhs)
{
	FString Result = Lhs;
	const bool bHasSlash = !Lhs.IsEmpty() && (Lhs.Data.back() == TEXT('/') || Lhs.Data.back() == TEXT('\\'));
	const bool bRightHasSlash = !Rhs.IsEmpty() && Rhs.Data.front() == TEXT('/');
	if (!Lhs.IsEmpty() && !bHasSlash && !bRightHasSlash)
	{
		Result.Data.push_back(TEXT('/'));
	}
	Result.Data.append(Rhs.Data, bHasSlash && bRightHasSlash ? 1 : 0, std::u16string::npos);
	return Result;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return Data.size() == Other.Data.size() && SameUnits(Data.data(), Other.Data.data(), Len(), SearchCase);
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	if (SearchCase == ESearchCase::CaseSensitive)
	{
		return Data.compare(Other.Data);
	}
	return ToLower().Data.compare(Other.ToLower().Data);
}

FString FString::Left(int32 Count) const
{
	return Mid(0, Count);
}

FString FString::LeftChop(int32 Count) const
{
	return Left(Len() - ClampIndex(Count, Len()));
}

FString FString::Right(int32 Count) const
{
	return Mid(Len() - ClampIndex(Count, Len()));
}

FString FString::RightChop(int32 Count) const
{
	return Mid(ClampIndex(Count, Len()));
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int32 First = ClampIndex(Start, Len());
	FString Result;
	Result.Data = Data.substr(static_cast<SIZE_T>(First), static_cast<SIZE_T>(ClampIndex(Count, Len() - First)));
	return Result;
}

bool FString::FindChar(TCHAR InChar, int32& Index) const
{
	const SIZE_T Found = Data.find(InChar);
	Index = Found == std::u16string::npos ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found);
	return Index != INDEX_NONE;
}

bool FString::FindLastChar(TCHAR InChar, int32& Index) const
{
	const SIZE_T Found = Data.rfind(InChar);
	Index = Found == std::u16string::npos ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found);
	return Index != INDEX_NONE;
}

int32 FString::Find(
	const FString& SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	const int32 LastStart = Len() - SubStr.Len();
	const bool bForward = SearchDir == ESearchDir::FromStart;
	int32 Index = bForward ? 0 : LastStart;
	if (StartPosition != INDEX_NONE)
	{
		// From the end, the start position bounds where a match may end.
		Index = bForward ? ClampIndex(StartPosition, Len())
						 : std::min(LastStart, ClampIndex(StartPosition, Len()) - SubStr.Len());
	}
	for (; Index >= 0 && Index <= LastStart; Index += bForward ? 1 : -1)
	{
		if (SameUnits(Data.data() + Index, SubStr.Data.data(), SubStr.Len(), SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FString::Contains(const FString& SubStr, ESearchCase::Type SearchCase) const
{
	return Find(SubStr, SearchCase) != INDEX_NONE;
}

bool FString::StartsWith(const FString& Prefix, ESearchCase::Type SearchCase) const
{
	return !Prefix.IsEmpty() && Prefix.Len() <= Len() &&
		SameUnits(Data.data(), Prefix.Data.data(), Prefix.Len(), SearchCase);
}

bool FString::EndsWith(const FString& Suffix, ESearchCase::Type SearchCase) const
{
	return !Suffix.IsEmpty() && Suffix.Len() <= Len() &&
		SameUnits(Data.data() + Len() - Suffix.Len(), Suffix.Data.data(), Suffix.Len(), SearchCase);
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	const FString Pattern(From);
	if (Pattern.IsEmpty())
	{
		return *this;
	}
	FString Result;
	int32 Copied = 0;
	for (int32 Found; (Found = Find(Pattern, SearchCase, ESearchDir::FromStart, Copied)) != INDEX_NONE;)
	{
		Result.Data.append(Data, static_cast<SIZE_T>(Copied), static_cast<SIZE_T>(Found - Copied)).append(To);
		Copied = Found + Pattern.Len();
	}
	Result.Data.append(Data, static_cast<SIZE_T>(Copied), std::u16string::npos);
	return Result;
}

FString FString::ToLower() const
{
	FString Result = *this;
	for (TCHAR& Char : Result.Data)
	{
		Char = FChar::ToLower(Char);
	}
	return Result;
}

void FString::Reserve(int32 Characters)
{
	Data.reserve(static_cast<SIZE_T>(Characters));
}

void FString::Reset()
{
	Data.clear();
}

void FString::RemoveAt(int32 Index, int32 Count)
{
	check(Index >= 0 && Count >= 0 && Index + Count <= Len());
	Data.erase(static_cast<SIZE_T>(Index), static_cast<SIZE_T>(Count));
}

FString FString::Printf(const TCHAR* Format, ...)
{
	va_list Arguments;
	va_start(Arguments, Format);
	FString Result = PrintfV(Format, Arguments);
	va_end(Arguments);
	return Result;
}

namespace
{
	/** One conversion as the C library spells it, "%-5lld", and its parts. */
	struct FConversion
	{
		std::string Spec;
		int32 Longs = 0;
		bool bNarrow = false;
		char Kind = 0;
	};

	FConversion ParseConversion(const TCHAR*& Cursor)
	{
		FConversion Result;
		Result.Spec = "%";
		for (++Cursor; *Cursor; ++Cursor)
		{
			const char Char = static_cast<char>(*Cursor);
			Result.Longs += Char == 'l' ? 1 : 0;
			Result.bNarrow |= Char == 'h';
			if (Char != 'h')
			{
				Result.Spec.push_back(Char);
			}
			if (std::char_traits<char>::find("diuxXfgscp%", 11, Char))
			{
				Result.Kind = Char;
				++Cursor;
				break;
			}
		}
		return Result;
	}

	template <typename ValueType>
	std::u16string FormatNumber(const std::string& Spec, ValueType Value)
	{
		// The window's toolkit sets the user's locale, and a decimal comma must not reach files or names.
		static const locale_t Invariant = newlocale(LC_ALL_MASK, "C", nullptr);
		const locale_t Old = uselocale(Invariant);
		// Long enough for the largest double's digits.
		char Buffer[512];
		const int Length = std::snprintf(Buffer, sizeof(Buffer), Spec.c_str(), Value);
		uselocale(Old);
		return FromUtf8(Buffer, std::min(Length, static_cast<int>(sizeof(Buffer)) - 1));
	}
}

FString FString::PrintfV(const TCHAR* Format, va_list Arguments)
{
	FString Result;
	for (const TCHAR* Cursor = Format; *Cursor;)
	{
		if (*Cursor != TEXT('%'))
		{
			Result.Data.push_back(*Cursor++);
			continue;
		}
		const FConversion Conversion = ParseConversion(Cursor);
		switch (Conversion.Kind)
		{
			case 's':
				Result.Data += Conversion.bNarrow ? FString(va_arg(Arguments, const ANSICHAR*)).Data
												  : FString(va_arg(Arguments, const TCHAR*)).Data;
				break;
			case 'c':
				Result.Data.push_back(static_cast<TCHAR>(va_arg(Arguments, int)));
				break;
			case 'f':
			case 'g':
				Result.Data += FormatNumber(Conversion.Spec, va_arg(Arguments, double));
				break;
			case 'p':
				Result.Data += FormatNumber(Conversion.Spec, va_arg(Arguments, void*));
				break;
			case '%':
				Result.Data.push_back(TEXT('%'));
				break;
			default:
				check(Conversion.Kind != 0);
				Result.Data += Conversion.Longs > 0 ? FormatNumber(Conversion.Spec, va_arg(Arguments, long long))
													: FormatNumber(Conversion.Spec, va_arg(Arguments, int));
				break;
		}
	}
	return Result;
}

FString FString::FromInt(int32 Number)
{
	return FString(std::to_string(Number).c_str());
}

uint32 GetTypeHash(const FString& String)
{
	uint32 Hash = 2166136261u;
	for (const TCHAR Char : String.Data)
	{
		Hash = (Hash ^ FChar::ToLower(Char)) * 16777619u;
	}
	return Hash;
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source) : Converted(ToUtf8(Source, LengthOf(Source))) {}

FTCHARToUTF8::FTCHARToUTF8(const FString& Source) : Converted(ToUtf8(*Source, Source.Len())) {}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: Converted(FromUtf8(Source, static_cast<int32>(std::char_traits<ANSICHAR>::length(Source))))
{}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 Count) : Converted(FromUtf8(Source, Count)) {}
