// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about what there is: the actors of both worlds and the assets. */
struct FActorRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
