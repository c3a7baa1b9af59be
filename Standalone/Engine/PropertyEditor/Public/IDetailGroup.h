// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FDetailWidgetRow;

/** Rows under a header that opens and closes. */
class IDetailGroup
{
public:
	virtual ~IDetailGroup() = default;

	/** An empty row. */
	virtual FDetailWidgetRow& AddWidgetRow() = 0;
};
