// Copyright Corvane. MIT License.
#pragma once

#include "ToolMenuSection.h"
#include "UObject/Object.h"

#include "ToolMenu.generated.h"

/** What was put into one menu or toolbar by those who extend it. */
UCLASS()
class TOOLMENUS_API UToolMenu : public UObject
{
	GENERATED_BODY()

public:
	/** A new section goes behind the others. The reference is good until the next section is added. */
	FToolMenuSection& FindOrAddSection(const FName SectionName);
	/** Null if there is none. */
	FToolMenuSection* FindSection(const FName SectionName);

	FName MenuName;
	TArray<FToolMenuSection> Sections;
};
