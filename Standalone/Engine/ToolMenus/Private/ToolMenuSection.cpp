// Copyright Corvane. MIT License.
#include "ToolMenuSection.h"

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	// Entries without name are told apart by nothing.
	FToolMenuEntry* Known = Args.Name.IsNone() ? nullptr : FindEntry(Args.Name);
	return Known ? *Known = Args : Blocks[Blocks.Add(Args)];
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([&InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}
