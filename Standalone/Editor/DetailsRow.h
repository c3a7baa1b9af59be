// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "IDetailTreeNode.h"

class IPropertyHandle;
class SCheckBox;
class SComboButton;

/** One row of the details panel, with the widgets that show it. */
struct FDetailsRow
{
	/** What a row is for whoever reads or changes it. */
	enum class EKind
	{
		/** Says how many members or elements are below it. */
		Struct,
		Text,
		Bool,
		Number,
		Object,
		Combo,
		/** A check box that is no property's own. */
		Check
	};

	/** Of no other row since the selection changed; the row keeps it when the rows are built anew. */
	int32 Id = 0;
	TSharedRef<IDetailTreeNode> Node;
	FNodeWidgets Widgets;
	/** The property whose name or value is shown, or null. */
	TSharedPtr<const IPropertyHandle> Property;
	/** The property's own row: its value can be set through the handle. Null otherwise. */
	TSharedPtr<IPropertyHandle> Value;
	/** Empty without property. */
	FString Path;
	EKind Kind = EKind::Struct;
	/** The row that it stands below, a structure's or an array's; 0 for none. */
	int32 ParentId = 0;
	/** The header that it stands under, and the how-manieth one of its category that is; -1 for none. */
	FText Group;
	int32 GroupIndex = INDEX_NONE;
	/** Whether a panel shows that header closed at first. */
	bool bGroupCollapsed = false;
	bool bAdvanced = false;

	explicit FDetailsRow(const TSharedRef<IDetailTreeNode>& InNode);

	/** The first text of the name's widget. */
	FText GetName() const;
	/** What a search finds it by, in one line. */
	FString GetFilter() const;

	/** The widget of that kind in the value, or null. */
	TSharedPtr<SComboButton> GetCombo() const;
	TSharedPtr<SCheckBox> GetCheckBox() const;
	/** The first text of the value's widget; asks its attribute once. */
	FText GetValueText() const;

	/** The first text of a widget. */
	static FText FindText(const TSharedPtr<SWidget>& Root);

private:
	EKind FindKind() const;
};
