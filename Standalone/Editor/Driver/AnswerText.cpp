// Copyright Corvane. MIT License.
#include "Driver/AnswerText.h"

#include "EngineText.h"
#include "Standalone/StyleInspector.h"
#include "Textures/SlateIcon.h"

void FAnswerText::Add(FAnswer& Answer, const std::string& Name, const FText& Text)
{
	Answer[Name] = FEngineText::ForDisplay(Text.ToString());
	Answer[Name + "Id"] = Id(Text);
}

FAnswer FAnswerText::Id(const FText& Text)
{
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	if (!Key.IsSet())
	{
		return nullptr;
	}
	const FString Namespace = FTextInspector::GetNamespace(Text).Get(FString());
	return FEngineText::ForDisplay(Namespace) + "," + FEngineText::ForDisplay(Key.GetValue());
}

FAnswer FAnswerText::Icon(const FSlateIcon& Icon)
{
	return Icon.IsSet() ? FAnswerText::Icon(Icon.GetStyleSetName(), Icon.GetStyleName()) : FAnswer(nullptr);
}

FAnswer FAnswerText::Icon(const FName& Style, const FName& Brush)
{
	return {{"style", FEngineText::ForDisplay(Style)}, {"brush", FEngineText::ForDisplay(Brush)}};
}

FAnswer FAnswerText::Icon(const FSlateBrush* Brush)
{
	FName Style;
	FName Key;
	return FStyleInspector::FindBrush(Brush, Style, Key) ? FAnswerText::Icon(Style, Key) : FAnswer(nullptr);
}
