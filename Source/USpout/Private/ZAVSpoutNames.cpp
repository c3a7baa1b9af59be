// Copyright Corvane. MIT License.
#include "ZAVSpoutNames.h"

namespace
{
	TArray<FString>& GetNames()
	{
		static TArray<FString> Names;
		return Names;
	}
}

TArray<FString> ZAVSpoutNames::GetActiveSenderNames()
{
	return GetNames();
}

void ZAVSpoutNames::SetActiveSenderNames(const TArray<FString>& Names)
{
	GetNames() = Names;
}
