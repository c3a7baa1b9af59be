// Copyright Corvane. MIT License.
#pragma once

#include "Driver/RequestTable.h"

/** Requests about notifications, and the release announcement that the plugin answers with one. */
struct FNotificationRequests
{
	static std::vector<FRequestDefinition> GetAll();
};
