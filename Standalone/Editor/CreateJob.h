// Copyright Corvane. MIT License.
#pragma once

#include "CreateReport.h"

#include <map>
#include <optional>
#include <set>
#include <string>

#include "CoreMinimal.h"

class AActor;
class FStandaloneEditor;
class UObject;

/**
 * Makes a streaming setup through the wizard, as a user does, and finds out what was made by comparing the level before
 * and after. The plugin's types are known by their reflected names only.
 */
class FCreateJob
{
public:
	explicit FCreateJob(FStandaloneEditor& InEditor) : Editor(InEditor) {}

	/**
	 * @return false if there is no wizard to fill in or its box does not take the name; OutError is then one line. A
	 * name that the wizard refuses is no error: the report then says why and has no setup.
	 */
	bool Run(const FString& Name, FCreateReport& OutReport, std::string& OutError);

private:
	/** What was there before: assets, and sender managers with the number of their entries. */
	struct FBefore
	{
		std::set<const UObject*> Assets;
		std::map<const AActor*, int32> Managers;
	};

	static FBefore LookAround();
	std::optional<FCreateReport::FSetup> FindSetup(const FBefore& Before) const;

	FStandaloneEditor& Editor;
};
