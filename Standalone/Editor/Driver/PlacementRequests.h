// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The request that reads the panel from which actors are placed. */
struct FPlacementRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
