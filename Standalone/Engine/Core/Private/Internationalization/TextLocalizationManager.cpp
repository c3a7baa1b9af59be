// Copyright Corvane. MIT License.
#include "Internationalization/TextLocalizationManager.h"

#include "Templates/UnrealTemplate.h"

FTextLocalizationManager& FTextLocalizationManager::Get()
{
	// Never destroyed: texts that outlive main still ask for the revision.
	static FTextLocalizationManager* const Manager = new FTextLocalizationManager;
	return *Manager;
}

void FTextLocalizationManager::SetTable(FTable InTable)
{
	Table = MoveTemp(InTable);
	++TextRevision;
	// Texts that were never displayed carry revision 0.
	TextRevision = TextRevision == 0 ? 1 : TextRevision;
}

FString FTextLocalizationManager::GetDisplayString(
	const FString& Namespace, const FString& Key, const FString& Source) const
{
	return Table ? Table(Namespace, Key, Source).Get(Source) : Source;
}
