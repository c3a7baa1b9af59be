// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about what was handed to the outside. */
struct FOutsideRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
