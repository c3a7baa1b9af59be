// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about the session itself: its modules, its clock and its end. */
struct FSessionRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
