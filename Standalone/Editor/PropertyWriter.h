// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <unordered_map>

#include "CoreMinimal.h"

class FArrayProperty;
class FProperty;
class UObject;
class UStruct;

/**
 * Puts reflected properties into JSON, in the form that FPropertyReader reads.
 *
 * In a level file what has its default value is left out, so that the file says what is special in it, and follows when
 * a default changes. A report shows everything and refuses nothing: what no file can hold shows as null, a reference
 * out of the level as a path, and ill-formed text with U+FFFD.
 */
class FPropertyWriter
{
public:
	/** What references are written as: paths of assets and names of actors. Other objects can't be referred to. */
	using FReferenceTexts = std::unordered_map<const UObject*, std::string>;
	using FPlace = nlohmann::json::json_pointer;

	/** For a level file. On refusal OutError is `JSON pointer: reason`. */
	FPropertyWriter(const FReferenceTexts& InReferences, std::string& OutError);

	/** For a report. */
	static nlohmann::ordered_json Report(
		const UStruct* Struct, const void* Container, const FReferenceTexts& InReferences);

	/**
	 * Writes those members of Container, an instance of Struct, that differ from those of Defaults, or all of them if
	 * that is null: an element of an array has nothing to follow, and stands complete for who reads the file.
	 * @return false for what no file can hold: text that is no well-formed Unicode, a number that is not finite, a
	 * reference out of the level.
	 */
	bool WriteMembers(const UStruct* Struct, const void* Container, const void* Defaults,
		nlohmann::ordered_json& OutJson, const FPlace& Place);

	/** Text as JSON holds it, or a refusal. */
	bool WriteString(const FString& Text, nlohmann::ordered_json& OutJson, const FPlace& Place);

	/** A finite number, or a refusal. */
	bool WriteFloat(float Number, nlohmann::ordered_json& OutJson, const FPlace& Place);

private:
	/** Adds the member to Members unless it has its default value. */
	bool WriteMember(const FProperty* Property, const void* Value, const void* Default, nlohmann::ordered_json& Members,
		const FPlace& Place);
	bool WriteValue(const FProperty* Property, const void* Value, const void* Default, nlohmann::ordered_json& OutJson,
		const FPlace& Place);
	bool WriteArray(
		const FArrayProperty* Property, const void* Value, nlohmann::ordered_json& OutJson, const FPlace& Place);
	bool WriteReference(const UObject* Object, nlohmann::ordered_json& OutJson, const FPlace& Place);
	/** @return whether Instead can stand in the value's place, as it does in a report. */
	bool Refuse(const FPlace& Place, const std::string& Reason, nlohmann::ordered_json& OutJson,
		nlohmann::ordered_json Instead);

	const FReferenceTexts& References;
	std::string& Error;
	bool bReport = false;
};
