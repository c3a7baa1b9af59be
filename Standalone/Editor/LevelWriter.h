// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "CoreMinimal.h"
#include "PropertyWriter.h"

class AActor;
class UObject;

/** Puts the open level, the assets in memory and the active view into the document of a level file. */
class FLevelWriter
{
public:
	/** On refusal OutError is `JSON pointer: reason`. */
	explicit FLevelWriter(std::string& OutError);

	bool WriteLevel(nlohmann::ordered_json& OutJson);

private:
	using FPlace = FPropertyWriter::FPlace;

	void FindReferences();
	bool WriteView(nlohmann::ordered_json& OutJson);
	bool WriteActors(nlohmann::ordered_json& OutJson);
	bool WriteActor(const AActor* Actor, nlohmann::ordered_json& OutJson, const FPlace& Place);
	bool WriteAssets(nlohmann::ordered_json& OutJson);
	bool WriteLocation(const FVector& Location, nlohmann::ordered_json& OutJson, const FPlace& Place);
	bool WriteRotation(const FRotator& Rotation, nlohmann::ordered_json& OutJson, const FPlace& Place);

	TArray<AActor*> Actors;
	TArray<UObject*> Assets;
	FPropertyWriter::FReferenceTexts References;
	FPropertyWriter Properties;
};
