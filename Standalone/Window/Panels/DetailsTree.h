// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <map>
#include <vector>

#include "DetailsPanel.h"
#include "Panels/DetailsItem.h"

/**
 * The lines of the details panel as a tree: which of them are shown depends on what is open and on the search. What has
 * been opened and closed is remembered as long as this lives, whatever is read meanwhile.
 */
class FDetailsTree
{
public:
	/** Takes over these rows. ClassName is of what is shown; lines of different classes are opened apart. */
	void Read(const std::vector<FDetailsPanel::FCategory>& Categories, const QString& ClassName);

	/** Shows only what has all words in it, in any letter case, with what is above it; "" shows everything. */
	void SetSearch(const QString& Text);

	const std::vector<FDetailsItem>& GetItems() const { return Items; }
	/** The shown lines' indices, from the top down. */
	std::vector<int> FindShown() const;

	/** What the search has found is open whatever the user has closed. */
	bool IsOpen(int Index) const;
	void SetOpen(int Index, bool bOpen);

private:
	/** What the search says of a line. */
	struct FFound
	{
		bool bItself = false;
		bool bBelow = false;
	};

	void ReadCategory(const FDetailsPanel::FCategory& Category, const QString& Key);
	void ReadRow(const FDetailsRow& Row, int Parent, const QString& Key);
	int Add(int Parent, FDetailsItem::EKind Kind, const QString& Key, const QString& Name, bool bOpenAtFirst);
	int FindAdvanced(int Category);
	int FindGroup(int Parent, const FDetailsRow& Row);

	bool Matches(const FDetailsItem& Item) const;
	/** @return whether the line or one below it is found. */
	bool Search(int Index);
	void Show(int Index, bool bWithin, std::vector<int>& OutShown) const;

	std::vector<FDetailsItem> Items;
	std::vector<int> Categories;
	/** While rows are being read: the category's lines by what rows say of where they stand. */
	std::map<int32, int> RowsById;
	std::map<int32, int> GroupsByIndex;
	int Advanced = -1;

	QStringList Words;
	std::vector<FFound> Found;
	QHash<QString, bool> Opened;
};
