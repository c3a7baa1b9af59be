// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

#include <type_traits>
#include <utility>

class FFormatArgumentValue;
class FText;
class FTextData;
class FTextFormat;

/** How exactly two texts are compared, from base letters alone to every code unit. */
namespace ETextComparisonLevel
{
	enum Type
	{
		Default,
		Primary,
		Secondary,
		Tertiary,
		Quaternary,
		Quinary
	};
}

/** Values for {0}, {1} and so on, in that order. */
typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;

/** Names FText if each of TArguments can be a value of a format; else the overload that asks for it drops out. */
template <typename... TArguments>
using TFormatResult = typename std::enable_if<(sizeof...(TArguments) > 0) &&
		std::is_same<std::integer_sequence<bool, true, std::is_convertible<TArguments, FFormatArgumentValue>::value...>,
			std::integer_sequence<bool, std::is_convertible<TArguments, FFormatArgumentValue>::value..., true>>::value,
	FText>::type;

/**
 * A text for the user's eyes. A localised text is identified by namespace, key and source text together, since one key
 * may stand with several sources; what is displayed for it comes from FTextLocalizationManager and may change at run
 * time. A formatted text keeps its pattern and arguments, has no identity of its own and follows changes of both. A
 * copy shares the original's data. Texts are for the game thread only.
 */
class CORE_API FText
{
public:
	/** The empty text. */
	FText() = default;

	static const FText& GetEmpty();

	/** A text without identity that always shows String. */
	static FText FromString(const FString& String);
	static FText FromString(FString&& String);

	/** A text that is the same in every language. */
	static FText AsCultureInvariant(const FString& String);

	/** A number for users to read, its digits in groups: 1,234. */
	static FText AsNumber(int64 Val);

	/**
	 * Fills the pattern's {0}, {1} and so on with the arguments' texts, word for word: braces within an argument mean
	 * nothing. A back-tick takes the meaning from a brace or back-tick that follows it. A token without a value, and a
	 * brace without its partner, stay as they are.
	 */
	static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& Args);

	/** The same with the values one by one. Takes texts only: a string would leave open whether it is translated. */
	template <typename... TArguments>
	static TFormatResult<TArguments...> Format(FTextFormat Fmt, TArguments&&... Args);

	/** The text to show now. The reference lives as long as a copy of this text does; its content follows the table. */
	const FString& ToString() const;

	/** True if nothing is displayed. */
	bool IsEmpty() const;

	/** True if nothing but white space is displayed. */
	bool IsEmptyOrWhitespace() const;

	/** True for what Unicode counts as white space, except the no-break spaces. */
	static bool IsWhitespace(const TCHAR Char);

	/**
	 * Below, equal to or above zero as what this text displays sorts before, with or after what the other does. By the
	 * rules of collation that hold in every language: some control characters carry no weight.
	 */
	int32 CompareTo(
		const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	/** Whether CompareTo is zero. */
	bool EqualTo(
		const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;

	/** True for copies of one text and for texts of one identity; equal displays alone do not make texts identical. */
	bool IdenticalTo(const FText& Other) const;

private:
	friend class FInternationalization;
	friend class FTextFormatInspector;
	friend class FTextInspector;

	explicit FText(const TSharedRef<FTextData>& InData);

	/** Null for the empty text without identity. */
	TSharedPtr<FTextData> Data;
};

/** One value for a format. */
class FFormatArgumentValue
{
public:
	FFormatArgumentValue(const FText& Value) : TextValue(Value) {}

	const FText& GetTextValue() const { return TextValue; }

private:
	FText TextValue;
};

/** The pattern of a format: a text, so that it can be translated. */
class CORE_API FTextFormat
{
public:
	FTextFormat(const FText& InText) : SourceText(InText) {}

	/** A pattern that is the same in every language. */
	static FTextFormat FromString(const FString& InString) { return FTextFormat(FText::FromString(InString)); }

	const FText& GetSourceText() const { return SourceText; }

private:
	FText SourceText;
};

template <typename... TArguments>
TFormatResult<TArguments...> FText::Format(FTextFormat Fmt, TArguments&&... Args)
{
	FFormatOrderedArguments OrderedArguments;
	OrderedArguments.Reserve(sizeof...(Args));
	const int32 Added[] = {OrderedArguments.Add(FFormatArgumentValue(std::forward<TArguments>(Args)))...};
	static_cast<void>(Added);
	return Format(std::move(Fmt), OrderedArguments);
}

/** Reads what a text is made of. */
class CORE_API FTextInspector
{
public:
	/** Unset for a text without identity. */
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);

	/** The text as its author wrote it; for a formatted text, which has no source, what it displays. Never null. */
	static const FString* GetSourceString(const FText& Text);

	static const FString& GetDisplayString(const FText& Text);
};
