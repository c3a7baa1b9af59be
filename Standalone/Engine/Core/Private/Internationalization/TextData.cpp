// Copyright Corvane. MIT License.
#include "TextData.h"

#include "Internationalization/TextLocalizationManager.h"
#include "TextFormatter.h"

FTextData::FTextData(const FString& InSource) : Kind(EKind::Plain), Source(InSource) {}

FTextData::FTextData(const FString& InNamespace, const FString& InKey, const FString& InSource)
	: Kind(EKind::Localised), Namespace(InNamespace), Key(InKey), Source(InSource)
{}

FTextData::FTextData(const FText& InPattern, const TArray<FText>& InArguments)
	: Kind(EKind::Formatted), Pattern(InPattern), Arguments(InArguments)
{}

const FString& FTextData::GetDisplay()
{
	if (Kind == EKind::Plain)
	{
		return Source;
	}
	const FTextLocalizationManager& Manager = FTextLocalizationManager::Get();
	if (Revision != Manager.GetTextRevision())
	{
		Revision = Manager.GetTextRevision();
		Display = Kind == EKind::Formatted ? FormatPattern(Pattern.ToString(), Arguments)
										   : Manager.GetDisplayString(Namespace, Key, Source);
	}
	return Display;
}
