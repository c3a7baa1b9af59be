// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about the details panel of what is selected. */
struct FDetailsRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
