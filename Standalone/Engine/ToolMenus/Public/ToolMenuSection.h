// Copyright Corvane. MIT License.
#pragma once

#include "ToolMenuEntry.h"

#include "ToolMenuSection.generated.h"

/** Entries of a menu that belong together. */
USTRUCT()
struct TOOLMENUS_API FToolMenuSection
{
	GENERATED_BODY()

	/** Appends an entry; one of the same name is replaced in its place. @return the entry, good until the next one. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);
	/** Null if there is none. */
	FToolMenuEntry* FindEntry(const FName InName);

	FName Name;
	TArray<FToolMenuEntry> Blocks;
};
