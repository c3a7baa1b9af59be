// Copyright Corvane. MIT License.
#pragma once

#include <array>
#include <optional>
#include <string>

/** What `create` tells at its end, as text for people or as one JSON object for scripts. All texts are UTF-8. */
struct FCreateReport
{
	struct FCamera
	{
		std::string Name;
		std::array<float, 3> Location{};
		/** Pitch, yaw, roll in degrees. */
		std::array<float, 3> Rotation{};
	};
	struct FManager
	{
		std::string Name;
		bool bSpawned = false;
		int Entries = 0;
	};
	struct FSender
	{
		bool bActive = false;
		std::string Name;
		std::string StandaloneName;
		std::string RenderTarget;
	};

	/** What was made; the other four are set exactly when this is. */
	struct FSetup
	{
		std::string Asset;
		FCamera Camera;
		FManager Manager;
		FSender Sender;
	};

	/** What the wizard's page says at the end. */
	std::string Message;
	/** The line that stood under the name box when the name had been typed. */
	std::optional<std::string> Warning;
	/** Unset if the wizard refused or failed. */
	std::optional<FSetup> Setup;
	/** Where the level was saved. */
	std::optional<std::string> SavedTo;

	/** @return one JSON object, ending with a line feed; its field names are a public interface. */
	std::string ToJson() const;

	/** @return a few aligned lines for a terminal. Control characters in names show as escapes. */
	std::string ToText() const;
};
