// Copyright Corvane. MIT License.
#include "ModuleDescriptor.h"

namespace
{
	/** The index of Text among the names, in any letter case; the number of names if it is not there. */
	template <int32 Count>
	int32 IndexOf(const TCHAR* const (&Names)[Count], const TCHAR* Text)
	{
		int32 Index = 0;
		while (Index < Count && FString(Names[Index]) != FString(Text))
		{
			++Index;
		}
		return Index;
	}
}

ELoadingPhase::Type ELoadingPhase::FromString(const TCHAR* Text)
{
	static const TCHAR* const Names[] = {TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"),
		TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"),
		TEXT("PostDefault"), TEXT("PostEngineInit"), TEXT("None")};
	static_assert(sizeof(Names) / sizeof(Names[0]) == Max, "One name for each phase");
	return static_cast<Type>(IndexOf(Names, Text));
}

EHostType::Type EHostType::FromString(const TCHAR* Text)
{
	static const TCHAR* const Names[] = {TEXT("Runtime"), TEXT("RuntimeNoCommandlet"), TEXT("RuntimeAndProgram"),
		TEXT("CookedOnly"), TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"), TEXT("Editor"),
		TEXT("EditorNoCommandlet"), TEXT("EditorAndProgram"), TEXT("Program"), TEXT("ServerOnly"), TEXT("ClientOnly"),
		TEXT("ClientOnlyNoCommandlet")};
	static_assert(sizeof(Names) / sizeof(Names[0]) == Max, "One name for each type");
	return static_cast<Type>(IndexOf(Names, Text));
}
