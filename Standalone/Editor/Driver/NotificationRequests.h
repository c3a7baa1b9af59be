// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about notifications and what they come from, neither of which this build has: each answers so. */
struct FNotificationRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
