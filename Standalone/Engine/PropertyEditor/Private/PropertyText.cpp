// Copyright Corvane. MIT License.
#include "PropertyText.h"

#include <charconv>
#include <cmath>
#include <string>

#include "UObject/UnrealType.h"

namespace
{
	/** The shortest text that reads back as the same number. */
	FString FormatFloat(float Number)
	{
		char Buffer[32];
		*std::to_chars(std::begin(Buffer), std::end(Buffer) - 1, Number).ptr = '\0';
		return FString(Buffer);
	}

	template <typename NumberType>
	bool ParseNumber(const FString& Text, NumberType& OutNumber)
	{
		const FTCHARToUTF8 Bytes(Text);
		const char* End = Bytes.Get() + Bytes.Length();
		const std::from_chars_result Result = std::from_chars(Bytes.Get(), End, OutNumber);
		return Result.ec == std::errc() && Result.ptr == End && std::isfinite(static_cast<float>(OutNumber));
	}

	bool ParseBool(const FString& Text, bool& OutValue)
	{
		OutValue = Text == TEXT("True");
		return OutValue || Text == TEXT("False");
	}

	bool ParseName(const FString& Text, FName& OutName)
	{
		// A longer one is fatal in the name table.
		const bool bFits = Text.Len() < NAME_SIZE;
		OutName = bFits ? FName(*Text) : FName();
		return bFits;
	}

	/** "/Game/Folder/Asset" is short for "/Game/Folder/Asset.Asset". */
	bool ParseObject(const FString& Text, UClass* Class, UObject*& OutObject)
	{
		int32 Mark = INDEX_NONE;
		const bool bShort = !Text.FindChar(TEXT('.'), Mark) && Text.FindLastChar(TEXT('/'), Mark);
		const FString Path = bShort ? Text + TEXT(".") + Text.RightChop(Mark + 1) : Text;
		// No part of the path may be too long for a name.
		for (int32 Index = 0, Begin = 0; Index < Path.Len(); ++Index)
		{
			Begin = Path[Index] == TEXT('.') || Path[Index] == TEXT(':') ? Index + 1 : Begin;
			if (Index - Begin >= NAME_SIZE - 1)
			{
				return false;
			}
		}
		const bool bNone = Text.IsEmpty() || Text == TEXT("None");
		OutObject = bNone ? nullptr : StaticFindObject(Class, nullptr, *Path);
		return bNone || IsValid(OutObject);
	}

	template <typename PropertyType, typename FormatType>
	bool FormatAs(const FProperty* Property, const void* Value, FString& OutText, FormatType FormatValue)
	{
		const bool bIsOne = CastField<PropertyType>(Property) != nullptr;
		OutText = bIsOne ? FormatValue(PropertyType::GetPropertyValue(Value)) : OutText;
		return bIsOne;
	}

	template <typename PropertyType, typename ParseType>
	bool ParseAs(const FProperty* Property, TFunctionRef<void(const void*)> Use, ParseType ParseValue)
	{
		typename PropertyType::TCppType Value{};
		const bool bParsed = CastField<PropertyType>(Property) && ParseValue(Value);
		if (bParsed)
		{
			Use(&Value);
		}
		return bParsed;
	}
}

bool FPropertyText::Format(const FProperty* Property, const void* Value, FString& OutText)
{
	if (const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property))
	{
		const UObject* Object = ObjectProperty->GetObjectPropertyValue(Value);
		OutText = Object ? Object->GetPathName() : FString(TEXT("None"));
		return true;
	}
	return FormatAs<FBoolProperty>(Property, Value, OutText, [](bool b) { return FString(b ? "True" : "False"); }) ||
		FormatAs<FIntProperty>(Property, Value, OutText, &FString::FromInt) ||
		FormatAs<FFloatProperty>(Property, Value, OutText, &FormatFloat) ||
		FormatAs<FStrProperty>(Property, Value, OutText, [](const FString& Text) { return Text; }) ||
		FormatAs<FNameProperty>(Property, Value, OutText, [](const FName& Name) { return Name.ToString(); }) ||
		FormatAs<FTextProperty>(Property, Value, OutText, [](const FText& Text) { return Text.ToString(); });
}

bool FPropertyText::Parse(const FProperty* Property, const FString& Text, TFunctionRef<void(const void*)> Use)
{
	if (const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property))
	{
		UObject* Object = nullptr;
		const bool bParsed = ParseObject(Text, ObjectProperty->PropertyClass, Object);
		if (bParsed)
		{
			Use(&Object);
		}
		return bParsed;
	}
	return ParseAs<FBoolProperty>(Property, Use, [&](bool& bValue) { return ParseBool(Text, bValue); }) ||
		ParseAs<FIntProperty>(Property, Use, [&](int32& Number) { return ParseNumber(Text, Number); }) ||
		ParseAs<FFloatProperty>(Property, Use, [&](float& Number) { return ParseNumber(Text, Number); }) ||
		ParseAs<FStrProperty>(Property, Use, [&](FString& String) { return (String = Text, true); }) ||
		ParseAs<FNameProperty>(Property, Use, [&](FName& Name) { return ParseName(Text, Name); }) ||
		ParseAs<FTextProperty>(Property, Use, [&](FText& Shown) { return (Shown = FText::FromString(Text), true); });
}
