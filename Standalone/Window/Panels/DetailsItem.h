// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "CoreMinimal.h"
#include "IDetailTreeNode.h"

class IPropertyHandle;
class SWidget;

/** One line of the details panel. What belongs to the editor is held weakly. */
struct FDetailsItem
{
	enum class EKind
	{
		Category,
		Group,
		/** What a category folds away from its other lines. */
		Advanced,
		Row
	};

	EKind Kind = EKind::Row;
	/** How many lines it is indented below its category's. */
	int Depth = 0;
	/** The lines below it, as indices. */
	std::vector<int> Children;
	/** Of a row: the editor's number for it. 0 for others. */
	int32 Id = 0;
	/** The same for the same line of all objects of a class; what is open is remembered by it. */
	QString Key;
	QString Name;
	/** What it is searched by: the words of a row, the name of any other line. */
	QString Filter;
	bool bOpenAtFirst = true;

	/** Of a row: where the value is, "" without property. */
	QString Path;
	bool bReadOnly = false;
	TWeakPtr<SWidget> Value;
	FNodeWidgetLayoutData Layout;
	TWeakPtr<IPropertyHandle> Handle;

	bool IsRow() const { return Kind == EKind::Row; }
};
