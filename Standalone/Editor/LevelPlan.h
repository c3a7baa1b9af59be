// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "CoreMinimal.h"
#include "LevelReferences.h"

class UClass;

/**
 * A level file that was read and found good in every part: what to make, in this order. Making it can't fail any more
 * for anything that stands in the file.
 */
struct FLevelPlan
{
	struct FAsset
	{
		FName Path;
		UClass* Class = nullptr;
	};
	struct FActor
	{
		FName Name;
		UClass* Class = nullptr;
		FVector Location;
		FRotator Rotation;
		/** Checked already; an empty object if there are none. */
		nlohmann::json Properties = nlohmann::json::object();
		nlohmann::json::json_pointer Place;
	};

	/** Of the active viewport's camera, in world units and degrees. */
	FVector ViewLocation;
	FRotator ViewRotation;
	std::vector<FAsset> Assets;
	std::vector<FActor> Actors;
	FLevelReferences References;

	/** Makes the plan of a file's text, or refuses it with OutError as `place: reason`. Changes nothing of the level.
	 */
	static bool Make(const std::string& Text, FLevelPlan& OutPlan, std::string& OutError);
};
