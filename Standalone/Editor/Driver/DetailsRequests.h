// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about details panels and the undo history, neither of which this build has: each answers so. */
struct FDetailsRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
