// Copyright Corvane. MIT License.
#pragma once

#include <vector>

#include "IDetailTreeNode.h"

class IPropertyRowGenerator;
class SWidget;
class UObject;

/** A details panel of some objects, without a window, with the widgets of all its rows. */
class FBenchmarkDetails
{
public:
	explicit FBenchmarkDetails(const TArray<UObject*>& Objects);

	/** The first widget of the type in the drop-down of sender names; fatal without one. */
	TSharedPtr<SWidget> FindInDropDown(const char* Type) const;
	/** The check boxes in the rows of the capture settings. */
	std::vector<TSharedRef<SWidget>> GetFlagBoxes() const;

private:
	void Read(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, bool bInGroup);

	TSharedRef<IPropertyRowGenerator> Generator;
	std::vector<TSharedRef<SWidget>> Values;
	std::vector<TSharedRef<SWidget>> FlagBoxes;
};
