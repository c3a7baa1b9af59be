// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The requests that work a tab's widgets as a user's hands do. */
struct FInputRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
