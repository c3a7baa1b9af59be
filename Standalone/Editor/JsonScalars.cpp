// Copyright Corvane. MIT License.
#include "JsonScalars.h"

#include "EngineText.h"

#include <cmath>
#include <limits>

using nlohmann::json;

namespace
{
	/** Larger than any double that still rounds to a finite 32-bit float: halfway to the next power of two. */
	constexpr double FloatLimit = 3.4028235677973366e38;
}

FJsonScalars::FReason FJsonScalars::ReadBool(const json& Json, bool& OutValue)
{
	if (!Json.is_boolean())
	{
		return "true or false is wanted";
	}
	OutValue = Json.get<bool>();
	return nullptr;
}

FJsonScalars::FReason FJsonScalars::ReadInt(const json& Json, int32& OutValue)
{
	if (!Json.is_number_integer())
	{
		return "a whole number is wanted";
	}
	// A number above the largest signed one is kept unsigned and would come out negative otherwise.
	const bool bTooLarge = Json.is_number_unsigned() && Json.get<uint64_t>() > std::numeric_limits<int32>::max();
	const int64_t Value = bTooLarge ? std::numeric_limits<int64_t>::max() : Json.get<int64_t>();
	if (Value < std::numeric_limits<int32>::min() || Value > std::numeric_limits<int32>::max())
	{
		return "the number does not fit into 32 bits";
	}
	OutValue = static_cast<int32>(Value);
	return nullptr;
}

FJsonScalars::FReason FJsonScalars::ReadFloat(const json& Json, float& OutValue)
{
	if (!Json.is_number())
	{
		return "a number is wanted";
	}
	const double Value = Json.get<double>();
	if (!(std::fabs(Value) < FloatLimit))
	{
		return "the number does not fit into 32 bits";
	}
	OutValue = static_cast<float>(Value);
	return nullptr;
}

FJsonScalars::FReason FJsonScalars::ReadString(const json& Json, FString& OutValue)
{
	if (!Json.is_string())
	{
		return "a text is wanted";
	}
	const std::string& Text = Json.get_ref<const std::string&>();
	if (Text.find('\0') != std::string::npos)
	{
		return "the text holds a null character";
	}
	OutValue = FEngineText::FromUtf8(Text);
	return nullptr;
}

FJsonScalars::FReason FJsonScalars::ReadName(const json& Json, FName& OutValue)
{
	FString Text;
	if (const FReason Reason = ReadString(Json, Text))
	{
		return Reason;
	}
	// A longer one is a fatal check in the name table.
	if (Text.Len() >= NAME_SIZE)
	{
		return "the name is longer than 1023 units";
	}
	OutValue = FName(*Text);
	return nullptr;
}
