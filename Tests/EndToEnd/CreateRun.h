// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "ChildProcess.h"

/** What the wizard says when it refuses a name, and what it says at the end. */
struct FWizardTexts
{
	static const std::string EmptyName;
	static const std::string TakenName;
	static std::string Created(const std::string& Name);
	static std::string Failed(const std::string& Name);
};

/** One run of `create NAME --json`, with its answer. */
struct FCreateRun
{
	/** Runs the program; the answer stays null if it is no JSON. */
	explicit FCreateRun(const std::string& Name, const std::vector<std::string>& Options = {});

	/** Expects a setup under this name, letter for letter, with the render target at this path. */
	void ExpectCreated(const std::string& Name, const std::string& AssetPath) const;

	/** Expects that nothing was made. Warning is empty for none. */
	void ExpectRefused(const std::string& Message, const std::string& Warning) const;

	FChildProcess Process;
	nlohmann::json Answer;
};

/** The path of a sample level. */
std::string GetSample(const std::string& Name);
