// Copyright Corvane. MIT License.
#include <unicode/ucol.h>
#include <unicode/unum.h>

#include "Internationalization/Text.h"

#include "Misc/AssertionMacros.h"
#include "Standalone/TextFormatInspector.h"
#include "TextData.h"

namespace
{
	UColAttributeValue ToStrength(ETextComparisonLevel::Type Level)
	{
		switch (Level)
		{
			case ETextComparisonLevel::Primary:
				return UCOL_PRIMARY;
			case ETextComparisonLevel::Secondary:
				return UCOL_SECONDARY;
			case ETextComparisonLevel::Quaternary:
				return UCOL_QUATERNARY;
			case ETextComparisonLevel::Quinary:
				return UCOL_IDENTICAL;
			default:
				return UCOL_TERTIARY;
		}
	}

	/** One collator for all comparisons, since opening one takes long. Never closed: texts may be compared at exit. */
	UCollator* GetCollator()
	{
		static UCollator* const Collator = []
		{
			UErrorCode Status = U_ZERO_ERROR;
			// The root locale, so that the answer does not depend on the machine.
			UCollator* const Opened = ucol_open("", &Status);
			check(U_SUCCESS(Status));
			return Opened;
		}();
		return Collator;
	}
}

FText::FText(const TSharedRef<FTextData>& InData) : Data(InData) {}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return String.IsEmpty() ? FText() : FText(MakeShared<FTextData>(String));
}

FText FText::FromString(FString&& String)
{
	const FString& Source = String;
	return FromString(Source);
}

FText FText::AsCultureInvariant(const FString& String)
{
	return FromString(String);
}

FText FText::AsNumber(int64 Val)
{
	UErrorCode Status = U_ZERO_ERROR;
	// English, so that the answer does not depend on the machine. The root locale would not group.
	UNumberFormat* const Formatter = unum_open(UNUM_DECIMAL, nullptr, 0, "en", nullptr, &Status);
	TCHAR Digits[32];
	const int32 NumDigits = unum_formatInt64(Formatter, Val, Digits, 32, nullptr, &Status);
	check(U_SUCCESS(Status));
	unum_close(Formatter);
	return FromString(FString(NumDigits, Digits));
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& Args)
{
	TArray<FText> Texts;
	Texts.Reserve(Args.Num());
	for (const FFormatArgumentValue& Value : Args)
	{
		Texts.Add(Value.GetTextValue());
	}
	return FText(MakeShared<FTextData>(Fmt.GetSourceText(), Texts));
}

const FString& FText::ToString() const
{
	static const FString Empty;
	return Data.IsValid() ? Data->GetDisplay() : Empty;
}

bool FText::IsEmpty() const
{
	return ToString().IsEmpty();
}

bool FText::IsEmptyOrWhitespace() const
{
	const FString& Display = ToString();
	for (int32 Index = 0; Index < Display.Len(); ++Index)
	{
		if (!IsWhitespace(Display[Index]))
		{
			return false;
		}
	}
	return true;
}

bool FText::IsWhitespace(const TCHAR Char)
{
	return FChar::IsWhitespace(Char);
}

int32 FText::CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	const FString& Left = ToString();
	const FString& Right = Other.ToString();
	UCollator* const Collator = GetCollator();
	ucol_setStrength(Collator, ToStrength(ComparisonLevel));
	return ucol_strcoll(Collator, *Left, Left.Len(), *Right, Right.Len());
}

bool FText::EqualTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	return CompareTo(Other, ComparisonLevel) == 0;
}

bool FText::IdenticalTo(const FText& Other) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	return Data.IsValid() && Other.Data.IsValid() && Data->HasIdentity() && Other.Data->HasIdentity() &&
		Data->GetNamespace().Equals(Other.Data->GetNamespace()) && Data->GetKey().Equals(Other.Data->GetKey()) &&
		Data->GetSource().Equals(Other.Data->GetSource());
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data.IsValid() && Text.Data->HasIdentity() ? TOptional<FString>(Text.Data->GetNamespace())
														   : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data.IsValid() && Text.Data->HasIdentity() ? TOptional<FString>(Text.Data->GetKey())
														   : TOptional<FString>();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	const bool bHasSource = Text.Data.IsValid() && !Text.Data->IsFormatted();
	return bHasSource ? &Text.Data->GetSource() : &Text.ToString();
}

const FString& FTextInspector::GetDisplayString(const FText& Text)
{
	return Text.ToString();
}

const FText* FTextFormatInspector::GetPattern(const FText& Text)
{
	return Text.Data.IsValid() && Text.Data->IsFormatted() ? &Text.Data->GetPattern() : nullptr;
}

const TArray<FText>* FTextFormatInspector::GetArguments(const FText& Text)
{
	return Text.Data.IsValid() && Text.Data->IsFormatted() ? &Text.Data->GetArguments() : nullptr;
}
