// Copyright Corvane. MIT License.
#include "CoreTestJournal.h"

TArray<FString>& GetCoreTestJournal()
{
	static TArray<FString> Journal;
	return Journal;
}
