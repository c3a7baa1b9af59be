// Copyright Corvane. MIT License.
#include "ToolMenu.h"

#include "UObject/Class.h"

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	if (FToolMenuSection* Found = FindSection(SectionName))
	{
		return *Found;
	}
	FToolMenuSection& Section = Sections.AddDefaulted_GetRef();
	Section.Name = SectionName;
	return Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate(
		[&SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}
