// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "IDetailTreeNode.h"
#include "Styling/SlateTypes.h"

#include "WidgetUser.h"

class IPropertyRowGenerator;
class SDockTab;
class UObject;

/**
 * A user in front of the details of some objects: reads what the rows show, ticks boxes, chooses from drop-downs. The
 * rows are those of a panel without window; what is to be clicked is shown in a tab of this object's own. Rows are
 * named by their index from the top down; INDEX_NONE is a row that is not there and shows nothing.
 */
class FDetailsUser
{
public:
	/** Selects the objects. */
	explicit FDetailsUser(const TArray<UObject*>& Objects);
	explicit FDetailsUser(UObject* Object) : FDetailsUser(TArray<UObject*>{Object}) {}
	~FDetailsUser();

	/** The first row below another one that shows this name; below INDEX_NONE: anywhere. */
	int32 FindRow(const TCHAR* Name, int32 Above = INDEX_NONE) const;
	/** The row of a Spout receiver, from the top down. */
	int32 FindReceiver(int32 Number = 0) const;
	/** The rows right below another one. */
	TArray<int32> GetRowsBelow(int32 Row) const;
	/** What those rows show as their names, each followed by "; ". */
	FString GetNamesBelow(int32 Row) const;

	FText GetName(int32 Row) const;
	/** The first text of the row's value. */
	FText GetValue(int32 Row) const;
	/** What a search finds the row by, each followed by "; ". */
	FString GetFilter(int32 Row) const;
	TSharedPtr<IDetailTreeNode> GetNode(int32 Row) const;
	/** The widgets of a type in the row's value. */
	TArray<TSharedRef<SWidget>> FindInValue(int32 Row, const TCHAR* Type) const;

	/** The state of the row's check box; undetermined for a row without. */
	ECheckBoxState GetCheck(int32 Row) const;
	/** Clicks the row's check box; nothing for a row without. */
	void Click(int32 Row);
	/** Chooses from the row's drop-down what shows this text; nothing for a row without. */
	void Choose(int32 Row, const FString& Option);

	/** How many times the panel was told that a change is finished. */
	int32 NumFinishedChanges = 0;

private:
	struct FRow
	{
		TSharedPtr<IDetailTreeNode> Node;
		FNodeWidgets Widgets;
		int32 Above;
	};

	void ReadRows(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, int32 Above);
	void ShowInTab(const TSharedRef<SWidget>& Widget);
	void CloseTab();
	const FRow* GetRow(int32 Row) const { return Rows.IsValidIndex(Row) ? &Rows[Row] : nullptr; }

	TSharedPtr<IPropertyRowGenerator> Generator;
	TArray<FRow> Rows;
	/** Open once something was clicked. */
	TSharedPtr<SDockTab> Tab;
};
