// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** The requests that read the level editor's toolbar and work the menus of its buttons. */
struct FMenuRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
