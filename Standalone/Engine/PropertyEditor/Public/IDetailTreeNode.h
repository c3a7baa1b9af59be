// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

class IPropertyHandle;
class SWidget;

/** What a node of the tree of rows is. */
enum class EDetailNodeType
{
	Category,
	/** A row, or a group of rows. */
	Item,
	Advanced,
	Object,
};

/** How a row's widget stands in its column, in slate units. */
struct FNodeWidgetLayoutData
{
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Center;
	TOptional<float> MinWidth;
	TOptional<float> MaxWidth;
};

/** A row's widgets; null where it has none. */
struct FNodeWidgets
{
	TSharedPtr<SWidget> NameWidget;
	FNodeWidgetLayoutData NameWidgetLayoutData;
	TSharedPtr<SWidget> ValueWidget;
	FNodeWidgetLayoutData ValueWidgetLayoutData;
};

/** A category, a group or a row of a details panel. */
class IDetailTreeNode
{
public:
	virtual ~IDetailTreeNode() = default;

	virtual EDetailNodeType GetNodeType() const = 0;
	/** The widgets of a custom row and of a header are its own; those of a property are new at each call. */
	virtual FNodeWidgets CreateNodeWidgets() const = 0;
	/** Appends what is below, simple rows first, then those of the advanced section. */
	virtual void GetChildren(TArray<TSharedRef<IDetailTreeNode>>& OutChildren) = 0;
	virtual FName GetNodeName() const = 0;
	/** Of a row that shows a property, else null. */
	virtual TSharedPtr<IPropertyHandle> CreatePropertyHandle() const = 0;
	/** Appends what a search finds the row by. */
	virtual void GetFilterStrings(TArray<FString>& OutFilterStrings) const = 0;
	virtual bool GetInitiallyCollapsed() const = 0;

	/** Whether it is folded away with its category's advanced section. The real engine has no such function. */
	virtual bool IsAdvanced() const = 0;
	/** Whether its children are rows under a header. The real engine has no such function. */
	virtual bool IsGroup() const = 0;
};
