// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about the undo history of the open level. */
struct FUndoRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
