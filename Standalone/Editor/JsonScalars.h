// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include "CoreMinimal.h"

/**
 * Single values of a level file as the engine's types. Each function returns null on success, else the reason why the
 * value is refused, in which case the out parameter is unchanged.
 */
class FJsonScalars
{
public:
	using FReason = const char*;

	static FReason ReadBool(const nlohmann::json& Json, bool& OutValue);
	/** Whole numbers only: 5.0 is refused, as a tool that writes it means something else. */
	static FReason ReadInt(const nlohmann::json& Json, int32& OutValue);
	/** Any number that a 32-bit float can hold, rounded to the nearest one. */
	static FReason ReadFloat(const nlohmann::json& Json, float& OutValue);
	static FReason ReadString(const nlohmann::json& Json, FString& OutValue);
	static FReason ReadName(const nlohmann::json& Json, FName& OutValue);
};
