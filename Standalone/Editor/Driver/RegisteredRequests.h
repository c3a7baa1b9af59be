// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The request that lists what modules have registered with the editor, so that leftovers of unloaded ones show. */
struct FRegisteredRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
