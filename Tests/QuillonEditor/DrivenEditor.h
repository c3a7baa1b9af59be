// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>
#include <string>

#include "Driver/DriverSession.h"

/** An editor with the plugin that is worked and read through the driver's requests, as a script would. */
class FDrivenEditor : public ::testing::Test
{
public:
	/** Sends a request, which must be answered with ok. */
	static nlohmann::json Ask(FDriverSession& Session, const nlohmann::json& Request);

protected:
	FDrivenEditor();

	nlohmann::json Ask(const nlohmann::json& Request) { return Ask(Session, Request); }
	nlohmann::json Ask(const char* Do) { return Ask(nlohmann::json{{"do", Do}}); }
	/** Loads or unloads the plugin's editor module, or another one. */
	void Module(const char* Action, const char* Name = "QuillonEditor");

	FDriverSession Session;
};
