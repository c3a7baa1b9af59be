// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "CoreMinimal.h"

class FArrayProperty;
class FLevelReferences;
class FObjectProperty;
class FProperty;
class FStructProperty;
class UStruct;

/**
 * Puts JSON into reflected properties, in two passes with the same rules: the first only checks, so that a level file
 * is known to be good before anything of the open level changes; the second writes.
 *
 * A structure is an object with its members' names; an array is an array and replaces all elements; a reference is the
 * path of an asset, the name of an actor, or null; a component that its owner makes itself is an object with its
 * properties.
 */
class FPropertyReader
{
public:
	enum class EPass
	{
		Check,
		Write
	};
	using FPlace = nlohmann::json::json_pointer;

	/** On refusal OutError is `JSON pointer: reason`. */
	FPropertyReader(EPass InPass, const FLevelReferences& InReferences, std::string& OutError);

	/**
	 * Reads the members of the object Json into Container, an instance of Struct. While checking, Container is the
	 * class's default object, which tells the classes of the components and stays as it is; it is null inside of
	 * arrays, whose elements do not exist yet.
	 */
	bool ReadMembers(const UStruct* Struct, void* Container, const nlohmann::json& Json, const FPlace& Place);

private:
	bool ReadValue(FProperty* Property, void* Value, const nlohmann::json& Json, const FPlace& Place);
	bool ReadArray(FArrayProperty* Property, void* Value, const nlohmann::json& Json, const FPlace& Place);
	bool ReadReference(FObjectProperty* Property, void* Value, const nlohmann::json& Json, const FPlace& Place);
	template <typename PropertyType, typename ValueType>
	bool ReadScalar(PropertyType* Property, void* Value, const nlohmann::json& Json, const FPlace& Place,
		const char* (*Read)(const nlohmann::json&, ValueType&));
	bool Refuse(const FPlace& Place, const std::string& Reason);

	EPass Pass;
	const FLevelReferences& References;
	std::string& Error;
};
