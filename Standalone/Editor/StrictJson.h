// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

/**
 * Reads and writes JSON as the level files need it.
 * Reading is strict: well-formed Unicode, no key twice in an object, no deeper than MaxDepth. Writing is made for
 * reading and comparing by people: one line for what holds only plain values, one line an element otherwise.
 */
class FStrictJson
{
public:
	/** Objects and arrays that may stand within each other, the outermost included. */
	static constexpr size_t MaxDepth = 64;

	/**
	 * Parses one JSON document.
	 * @return false on failure; OutError is then `place: reason`, the place "line L, column C" (in bytes) for what is
	 * no JSON, and a JSON pointer for what is not allowed here.
	 */
	static bool Parse(std::string_view Text, nlohmann::json& OutValue, std::string& OutError);

	/** @return Value as text ending with a line feed. Its strings must be well-formed UTF-8. */
	static std::string Format(const nlohmann::ordered_json& Value);

	/** @return Value in the fewest digits that give this very 32-bit number again. Value must be finite. */
	static nlohmann::ordered_json Number(float Value);
};
