// Copyright Corvane. MIT License.
#pragma once

#include "Driver/Request.h"

struct FDetailsRow;

/** A row of the details panel as answers show it. */
class FDetailsRowAnswer
{
public:
	/** Asks each attribute that the row is bound to once, as the panel does when it draws the row. */
	static FAnswer Describe(const FDetailsRow& Row);

	/** @return the texts of a combo's list, as it stands. */
	static std::vector<FString> GetOptions(const FDetailsRow& Row);
};
