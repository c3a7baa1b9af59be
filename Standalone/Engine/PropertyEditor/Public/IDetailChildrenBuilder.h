// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FDetailWidgetRow;
class IDetailPropertyRow;
class IPropertyHandle;

/** Adds the rows below a value's row, in the order of the calls. */
class IDetailChildrenBuilder
{
public:
	virtual ~IDetailChildrenBuilder() = default;

	/** A row for the property, with what is below it. */
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) = 0;
	/** An empty row. @param SearchString what a search finds it by. */
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) = 0;
};
