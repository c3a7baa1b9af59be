// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The requests that look at a tab's widgets: all of them as a tree, or where one of them stands. */
struct FWidgetRequests
{
	static std::vector<FRequestDefinition> GetAll();
	/** Listed apart, behind the requests that type and click. */
	static std::vector<FRequestDefinition> GetGeometry();
};
