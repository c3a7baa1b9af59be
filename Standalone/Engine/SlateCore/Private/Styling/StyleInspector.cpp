// Copyright Corvane. MIT License.
#include "Standalone/StyleInspector.h"

#include "Styling/SlateStyleRegistry.h"

TArray<FName> FStyleInspector::GetStyleSetNames()
{
	TArray<FName> Names;
	for (const TPair<FName, const ISlateStyle*>& Style : FSlateStyleRegistry::GetRegisteredStyles())
	{
		Names.Add(Style.Key);
	}
	Names.StableSort([](const FName& First, const FName& Second) { return First.LexicalLess(Second); });
	return Names;
}

bool FStyleInspector::FindBrush(const FSlateBrush* Brush, FName& OutStyleSet, FName& OutKey)
{
	for (const TPair<FName, const ISlateStyle*>& Style : FSlateStyleRegistry::GetRegisteredStyles())
	{
		if (const FName* Key = Brush ? Style.Value->FindKey(Brush) : nullptr)
		{
			OutStyleSet = Style.Key;
			OutKey = *Key;
			return true;
		}
	}
	return false;
}
