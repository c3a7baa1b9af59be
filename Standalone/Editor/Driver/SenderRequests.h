// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about the Spout senders of the machine. */
struct FSenderRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
