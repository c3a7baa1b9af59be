// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"

#include <cstdarg>
#include <string>

/** How letters are compared: ASCII letters only, whatever the locale. */
namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase,
	};
}

/** From which end a search begins. */
namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd,
	};
}

/** Single characters. */
struct CORE_API FChar
{
	/** The ASCII letter in lower case; any other character as it is. */
	static TCHAR ToLower(TCHAR Char)
	{
		return Char >= TEXT('A') && Char <= TEXT('Z') ? static_cast<TCHAR>(Char + (TEXT('a') - TEXT('A'))) : Char;
	}
	/** White space by ICU's u_isWhitespace, which leaves out the no-break spaces. */
	static bool IsWhitespace(TCHAR Char);
};

/**
 * The engine's string: UTF-16 code units, possibly ill-formed, with any length.
 *
 * Operator == and < ignore the case of ASCII letters, and so do arrays and maps of strings; Equals and Compare are
 * exact unless asked otherwise.
 */
class CORE_API FString
{
public:
	FString() = default;
	FString(const TCHAR* Source);
	/** From ASCII or UTF-8 text. */
	FString(const ANSICHAR* Source);
	/** The first Count units of Source. */
	FString(int32 Count, const TCHAR* Source);

	int32 Len() const { return static_cast<int32>(Data.size()); }
	bool IsEmpty() const { return Data.empty(); }
	/** The units, closed by a zero. */
	const TCHAR* operator*() const { return Data.c_str(); }
	TCHAR& operator[](int32 Index);
	const TCHAR& operator[](int32 Index) const;
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }

	FString& operator+=(const FString& Other);
	FString& AppendChar(TCHAR Char);
	friend CORE_API FString operator+(const FString& Lhs, const FString& Rhs);
	/** Joins with exactly one slash between the two. */
	friend CORE_API FString operator/(const FString& Lhs, const FString& Rhs);

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	/** Below, equal to or above zero as this string sorts before, with or after the other, by units. */
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	friend bool operator==(const FString& Lhs, const FString& Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator!=(const FString& Lhs, const FString& Rhs) { return !(Lhs == Rhs); }
	friend bool operator<(const FString& Lhs, const FString& Rhs)
	{
		return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0;
	}

	FString Left(int32 Count) const;
	FString LeftChop(int32 Count) const;
	FString Right(int32 Count) const;
	FString RightChop(int32 Count) const;
	FString Mid(int32 Start, int32 Count = MAX_int32) const;

	bool FindChar(TCHAR InChar, int32& Index) const;
	bool FindLastChar(TCHAR InChar, int32& Index) const;
	/** Where SubStr begins, or INDEX_NONE. */
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool StartsWith(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	FString ToLower() const;

	void Reserve(int32 Characters);
	void Reset();
	/** Replaces Count units from Index on by nothing. */
	void RemoveAt(int32 Index, int32 Count = 1);

	/** Formats %s (TCHAR text), %hs (narrow text), %c, %d, %i, %u, %x, %lld, %llu, %f, %g and %%, with flags, width,
	 * precision. */
	static FString Printf(const TCHAR* Format, ...);
	static FString PrintfV(const TCHAR* Format, va_list Arguments);
	static FString FromInt(int32 Number);

	/** Hash that agrees with ==. */
	friend CORE_API uint32 GetTypeHash(const FString& String);

private:
	std::u16string Data;
};

/** UTF-16 to UTF-8 for the length of an expression; a lone surrogate becomes U+FFFD. */
class CORE_API FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source);
	/** The whole string, embedded zeros included. */
	explicit FTCHARToUTF8(const FString& Source);
	const ANSICHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return static_cast<int32>(Converted.size()); }

private:
	std::string Converted;
};

/** UTF-8 to UTF-16 for the length of an expression; ill-formed bytes become U+FFFD. */
class CORE_API FUTF8ToTCHAR
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Source);
	FUTF8ToTCHAR(const ANSICHAR* Source, int32 Count);
	const TCHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return static_cast<int32>(Converted.size()); }

private:
	std::u16string Converted;
};

#define TCHAR_TO_UTF8(Text) FTCHARToUTF8(Text).Get()
#define UTF8_TO_TCHAR(Text) FUTF8ToTCHAR(Text).Get()
