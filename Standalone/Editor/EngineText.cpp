// Copyright Corvane. MIT License.
#include "Unicode.h"

#include "EngineText.h"

FString FEngineText::FromUtf8(const std::string& Text)
{
	std::u16string Units;
	verify(FUnicode::ToUtf16(Text, Units));
	return FString(static_cast<int32>(Units.size()), Units.data());
}

bool FEngineText::ToUtf8(const FString& Text, std::string& OutText)
{
	return FUnicode::ToUtf8(std::u16string_view(*Text, static_cast<size_t>(Text.Len())), OutText);
}

std::string FEngineText::ForDisplay(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::string FEngineText::ForDisplay(const FName& Name)
{
	return ForDisplay(Name.ToString());
}
