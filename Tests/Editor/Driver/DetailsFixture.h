// Copyright Corvane. MIT License.
#pragma once

#include "EditorStateFixture.h"
#include "EveryPropertyActor.h"

/** A session in which the details panel is read and changed. */
class FDetailsFixture : public FEditorStateFixture
{
protected:
	using FEditorStateFixture::Ask;

	/** Spawns an actor with every kind of property and selects all that were spawned. */
	AEveryPropertyActor& SpawnSelected();

	FAnswer GetCategories() { return Ask({{"do", "details"}})["categories"]; }

	/** @return the one row of that path, or null with a failure. */
	FAnswer GetRow(const std::string& Path);

	/** @return the name of each row of each category. */
	std::vector<std::string> GetNames();

	void Set(const nlohmann::json& Row, const nlohmann::json& Value);
	std::string RefuseSet(const nlohmann::json& Row, const nlohmann::json& Value);

private:
	std::vector<std::string> Spawned;
};
