// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about the level's file and the views into it. */
struct FLevelRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
