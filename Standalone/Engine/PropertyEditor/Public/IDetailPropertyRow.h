// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class IPropertyHandle;

/** A row that shows a property. */
class IDetailPropertyRow
{
public:
	virtual ~IDetailPropertyRow() = default;

	virtual TSharedPtr<IPropertyHandle> GetPropertyHandle() const = 0;
};
