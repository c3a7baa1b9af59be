// Copyright Corvane. MIT License.
#include "Standalone/BindingCounts.h"

#include <map>
#include <string>

namespace
{
	/** Never destroyed: bindings of static delegates go later than anything else. */
	std::map<std::string, int32>& GetCounts()
	{
		static std::map<std::string, int32>& Counts = *new std::map<std::string, int32>;
		return Counts;
	}
}

int32 FBindingCounts::Count(const ANSICHAR* MethodType)
{
	int32 Total = 0;
	for (const auto& Entry : GetCounts())
	{
		Total += Entry.first.find(MethodType) == std::string::npos ? 0 : Entry.second;
	}
	return Total;
}

int32& FBindingCounts::Find(const ANSICHAR* Kind)
{
	return GetCounts()[Kind];
}
