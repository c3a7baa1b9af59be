// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The requests that list, open and close tabs. */
struct FTabRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
