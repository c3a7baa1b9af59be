// Copyright Corvane. MIT License.
#include "Driver/Request.h"

#include <algorithm>

#include "EngineText.h"
#include "JsonScalars.h"

using nlohmann::json;

namespace
{
	/** More than any editor shows; making them takes longer and longer. */
	constexpr size_t MaxClients = 64;
	/** Beyond it a frame would no longer move the clock. */
	constexpr double MaxSeconds = 1e9;

	std::string CheckText(const json& Json)
	{
		FString Ignored;
		const FJsonScalars::FReason Reason = FJsonScalars::ReadString(Json, Ignored);
		return Reason ? Reason : "";
	}

	std::string CheckTexts(const json& Json)
	{
		if (!Json.is_array())
		{
			return "a list of texts is wanted";
		}
		for (const json& Element : Json)
		{
			std::string Reason = CheckText(Element);
			if (!Reason.empty())
			{
				return Reason;
			}
		}
		return "";
	}

	std::string CheckIndex(const json& Json)
	{
		int32 Index = 0;
		if (const FJsonScalars::FReason Reason = FJsonScalars::ReadInt(Json, Index))
		{
			return Reason;
		}
		return Index >= 0 ? "" : "the number is below 0";
	}

	std::string CheckSeconds(const json& Json)
	{
		// What overflows is no JSON already.
		if (!Json.is_number())
		{
			return "a number is wanted";
		}
		if (Json.get<double>() < 0.0)
		{
			return "the number is below 0";
		}
		return Json.get<double>() <= MaxSeconds ? "" : "the number is above 1e9";
	}

	std::string CheckVector(const json& Json)
	{
		if (!Json.is_array() || Json.size() != 3)
		{
			return "a list of three numbers is wanted";
		}
		for (const json& Element : Json)
		{
			float Ignored = 0.0F;
			if (const FJsonScalars::FReason Reason = FJsonScalars::ReadFloat(Element, Ignored))
			{
				return Reason;
			}
		}
		return "";
	}

	bool IsClient(const json& Json)
	{
		return Json.is_object() && Json.size() == 1 && Json.contains("world") && CheckIndex(Json["world"]).empty() &&
			Json["world"].get<int32>() <= 1;
	}

	std::string CheckClients(const json& Json)
	{
		if (!Json.is_array() || !std::all_of(Json.begin(), Json.end(), IsClient))
		{
			return "a list of {\"world\": 0 or 1} is wanted";
		}
		return Json.size() <= MaxClients ? "" : "there are more than 64 clients";
	}
}

const char* FParameter::GetTypeName() const
{
	switch (Type)
	{
		case EParameterType::Text:
			return "text";
		case EParameterType::Texts:
			return "texts";
		case EParameterType::Index:
			return "index";
		case EParameterType::IndexOrNull:
			return "index or null";
		case EParameterType::IndexOrText:
			return "index or text";
		case EParameterType::Seconds:
			return "seconds";
		case EParameterType::Vector:
			return "vector";
		case EParameterType::Value:
			return "value";
		default:
			return "clients";
	}
}

std::string FParameter::Check(const json& Json) const
{
	switch (Type)
	{
		case EParameterType::Text:
			return CheckText(Json);
		case EParameterType::Texts:
			return CheckTexts(Json);
		case EParameterType::Index:
			return CheckIndex(Json);
		case EParameterType::IndexOrNull:
			return Json.is_null() ? "" : CheckIndex(Json);
		case EParameterType::IndexOrText:
			return Json.is_string() ? CheckText(Json) : CheckIndex(Json);
		case EParameterType::Seconds:
			return CheckSeconds(Json);
		case EParameterType::Vector:
			return CheckVector(Json);
		case EParameterType::Value:
			if (!Json.is_boolean() && !Json.is_number() && !Json.is_string())
			{
				return "a text, a number, true or false is wanted";
			}
			return Json.is_string() ? CheckText(Json) : "";
		default:
			return CheckClients(Json);
	}
}

const json& FRequest::Get(const char* Name) const
{
	checkf(Has(Name), TEXT("the request has no parameter %s"), *FString(Name));
	return Parameters.at(Name);
}

FString FRequest::GetText(const char* Name) const
{
	return FEngineText::FromUtf8(GetUtf8(Name));
}

std::string FRequest::GetUtf8(const char* Name) const
{
	return Get(Name).get<std::string>();
}

std::vector<FString> FRequest::GetTexts(const char* Name) const
{
	std::vector<FString> Texts;
	for (const json& Element : Get(Name))
	{
		Texts.push_back(FEngineText::FromUtf8(Element.get<std::string>()));
	}
	return Texts;
}

int32 FRequest::GetIndex(const char* Name) const
{
	return Get(Name).get<int32>();
}

double FRequest::GetSeconds(const char* Name) const
{
	return Get(Name).get<double>();
}

FVector FRequest::GetVector(const char* Name) const
{
	const json& Json = Get(Name);
	FVector Vector;
	FJsonScalars::ReadFloat(Json[0], Vector.X);
	FJsonScalars::ReadFloat(Json[1], Vector.Y);
	FJsonScalars::ReadFloat(Json[2], Vector.Z);
	return Vector;
}

FRotator FRequest::GetRotator(const char* Name) const
{
	const FVector Angles = GetVector(Name);
	return FRotator(Angles.X, Angles.Y, Angles.Z);
}

bool FRequest::IsNull(const char* Name) const
{
	return Get(Name).is_null();
}

bool FRequest::IsText(const char* Name) const
{
	return Get(Name).is_string();
}

std::vector<int32> FRequest::GetWorlds(const char* Name) const
{
	std::vector<int32> Worlds;
	for (const json& Client : Get(Name))
	{
		Worlds.push_back(Client["world"].get<int32>());
	}
	return Worlds;
}
