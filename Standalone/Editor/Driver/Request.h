// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>
#include <vector>

#include "CoreMinimal.h"

/** What a request answers beside "do" and "ok": an object, its members in the order in which they are written. */
using FAnswer = nlohmann::ordered_json;

/** A request that can't be carried out. The text is the answer's "error"; nothing was changed. */
struct FRequestError : std::runtime_error
{
	using std::runtime_error::runtime_error;
};

/** What a parameter may be. */
enum class EParameterType
{
	Text,
	Texts,
	/** A whole number from 0 to 2^31 - 1. */
	Index,
	IndexOrNull,
	IndexOrText,
	/** A finite number, not below 0. */
	Seconds,
	/** Three finite numbers that fit 32 bits. */
	Vector,
	/** A text, a number, true or false. */
	Value,
	/** A list of {"world": 0 or 1}. */
	Clients
};

struct FParameter
{
	const char* Name;
	EParameterType Type;
	bool bRequired;

	/** @return the type's name in the answer of `help`. */
	const char* GetTypeName() const;

	/** @return why Json can't be this parameter, or an empty text if it can. */
	std::string Check(const nlohmann::json& Json) const;
};

/** The parameters of one request. Their types, and that all required ones are there, were checked by the table. */
class FRequest
{
public:
	explicit FRequest(nlohmann::json InParameters) : Parameters(std::move(InParameters)) {}

	bool Has(const char* Name) const { return Parameters.contains(Name); }

	/** Fatal for a parameter that is not there, as are the next ones. */
	FString GetText(const char* Name) const;
	/** The same as UTF-8, for paths. */
	std::string GetUtf8(const char* Name) const;
	std::vector<FString> GetTexts(const char* Name) const;
	int32 GetIndex(const char* Name) const;
	double GetSeconds(const char* Name) const;
	FVector GetVector(const char* Name) const;
	/** A vector's numbers as pitch, yaw and roll in degrees. */
	FRotator GetRotator(const char* Name) const;
	bool IsNull(const char* Name) const;
	bool IsText(const char* Name) const;
	/** A text, a number, true or false. */
	const nlohmann::json& GetValue(const char* Name) const { return Get(Name); }
	/** The worlds of a list of clients. */
	std::vector<int32> GetWorlds(const char* Name) const;

private:
	const nlohmann::json& Get(const char* Name) const;

	nlohmann::json Parameters;
};
