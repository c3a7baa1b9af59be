// Copyright Corvane. MIT License.
#pragma once

#include "TabFixture.h"

/** A session of which a refused request may change nothing at all. */
class FEditorStateFixture : public FSessionFixture
{
protected:
	FEditorStateFixture() = default;
	explicit FEditorStateFixture(const FStandaloneEditorOptions& Options) : FSessionFixture(Options) {}

	/** @return the error of a request that changed nothing of what a recording can see. */
	std::string GetRefusal(const nlohmann::json& Request);

	/** The same for a line that need not be a request; Do is what the answer must repeat. */
	std::string GetLineRefusal(const std::string& Line, const FAnswer& Do = FAnswer());

	/** Places an actor and returns its name. */
	std::string Place(const char* Class);

	/** Names of the selected actors. */
	FAnswer GetSelected() { return Ask({{"do", "level"}})["selected"]; }

	/** Level, assets, viewports, registrations and what went outside. */
	std::string DescribeState();
};
