// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "TestEditor.h"

#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "WidgetFinder.h"
#include "WizardPages.h"

/**
 * A fresh editor with the plugin loaded and the wizard open, for what a real editor cannot stage. The plugin is not
 * linked: its actors and entries are reached by reflection.
 */
class FWizardFixture : public ::testing::Test
{
protected:
	void OpenWizard();
	/** Opens the wizard if need be, types the name, clicks create. @return what the page says then. */
	std::string Create(const FString& Name);
	/** Pastes the name over what stands in the box of the open wizard. */
	void PasteName(const FString& Name);
	/** Clicks the shown button with this caption. */
	void Click(const char* Caption);
	bool HasButton(const char* Caption) const;
	/** The warning as it shows, or empty. */
	std::string GetWarning() const;

	static UClass* FindActorClass(const TCHAR* Name);
	static TArray<AActor*> GetActors(UWorld* World, const TCHAR* ClassName);
	/** The manager's sender entries as "name|stand-alone name". */
	static std::vector<std::string> GetSenders(AActor* Manager);
	/** Places a manager with one entry of these names. */
	static AActor* PlaceManager(UWorld* World, const TCHAR* SenderName, const TCHAR* StandaloneName);
	/** Expects that the first world has neither camera nor manager. */
	void ExpectNoActors() const;
	/** The packages of the registered assets, in order. */
	static std::vector<std::string> GetAssetPackages();

	UWorld* World(int32 Index) const { return &Editor.GetWorld(Index); }

	FTestEditor Editor;
	TSharedPtr<SWidget> Wizard;
	std::unique_ptr<FWizardPages> Pages;
};
