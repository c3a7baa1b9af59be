// Copyright Corvane. MIT License.
#include "StandaloneEditor.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include "AssetRegistry/IAssetRegistry.h"
#include "Editor.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Standalone/ToolMenusStartup.h"
#include "ToolMenus.h"
#include "UObject/Class.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "WizardPages.h"

namespace
{
	FStandaloneEditorOptions EngineOnly()
	{
		FStandaloneEditorOptions Options;
		Options.bLoadPlugin = false;
		return Options;
	}

	ISaveGameSystem* GetSaveGames()
	{
		return IPlatformFeaturesModule::Get().GetSaveGameSystem();
	}

	bool IsPluginLoaded()
	{
		return FModuleManager::Get().IsModuleLoaded("QuillonEditor") &&
			FModuleManager::Get().IsModuleLoaded("Quillon") && FModuleManager::Get().IsModuleLoaded("USpout");
	}

	void ExpectNothingRuns()
	{
		EXPECT_EQ(GEditor, nullptr);
		EXPECT_FALSE(FSlateApplication::IsInitialized());
		EXPECT_EQ(IAssetRegistry::Get(), nullptr);
		for (const ANSICHAR* Module :
			{"AssetRegistry", "AssetTools", "PlacementMode", "USpout", "Quillon", "QuillonEditor"})
		{
			EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(Module)) << Module;
		}
	}
}

TEST(FStandaloneEditor, StartsWithTwoWorldsAndAnActiveViewportOnTheFirst)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(EngineOnly(), Error)) << Error;
	EXPECT_NE(Editor.GetWorld(0), nullptr);
	EXPECT_NE(Editor.GetWorld(1), nullptr);
	EXPECT_NE(Editor.GetWorld(0), Editor.GetWorld(1));
	ASSERT_EQ(GEditor->GetAllViewportClients().Num(), 1);
	EXPECT_EQ(GEditor->GetAllViewportClients()[0], &Editor.GetLevelClient());
	EXPECT_EQ(Editor.GetLevelClient().GetWorld(), Editor.GetWorld(0));
	EXPECT_EQ(GEditor->GetActiveViewport(), Editor.GetLevelClient().Viewport);
}

TEST(FStandaloneEditor, StartsWithoutViewportWhenAsked)
{
	FStandaloneEditorOptions Options = EngineOnly();
	Options.bOpenViewport = false;
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(Options, Error)) << Error;
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 0);
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST(FStandaloneEditor, LoadsThePluginsModules)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
	EXPECT_TRUE(IsPluginLoaded());
	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner("CineStreamWizard"));
}

TEST(FStandaloneEditor, LeavesNothingRunningBehind)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
	const TWeakObjectPtr<UWorld> Level = Editor.GetWorld(0);
	const TWeakObjectPtr<UWorld> Second = Editor.GetWorld(1);
	const TWeakObjectPtr<UEditorEngine> Engine = GEditor;
	Editor.Shutdown();
	ExpectNothingRuns();
	EXPECT_FALSE(Level.IsValid());
	EXPECT_FALSE(Second.IsValid());
	EXPECT_FALSE(Engine.IsValid());
	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner("CineStreamWizard"));
}

TEST(FStandaloneEditor, ClosesTabsBeforeTheModulesThatMadeThem)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
	const TWeakPtr<SWidget> Wizard = FWizardPages::Open(Error);
	ASSERT_TRUE(Wizard.IsValid());
	Editor.Shutdown();
	EXPECT_FALSE(Wizard.IsValid());
	EXPECT_EQ(FGlobalTabmanager::Get()->GetOpenTabs().Num(), 0);
}

TEST(FStandaloneEditor, KeepsSaveGamesFromBeforeThePluginsStartUntilAfterItsEnd)
{
	static ISaveGameSystem* SeenAtStart;
	static ISaveGameSystem* SeenAtEnd;
	/** Is shut down with the plugin's modules. */
	class FWitness : public IModuleInterface
	{
		virtual void ShutdownModule() override { SeenAtEnd = GetSaveGames(); }
	};
	SeenAtStart = nullptr;
	SeenAtEnd = nullptr;
	const FTemporaryFolder Folder;
	FStandaloneEditorOptions Options;
	Options.SavedDir = Folder.File("saved");
	// Asked after the engine's own modules, before the plugin.
	Options.GetEditorClass = []
	{
		SeenAtStart = GetSaveGames();
		return UEditorEngine::StaticClass();
	};
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(Options, Error)) << Error;
	ISaveGameSystem* const SaveGames = GetSaveGames();
	ASSERT_NE(SaveGames, nullptr);
	EXPECT_EQ(SeenAtStart, SaveGames);
	EXPECT_TRUE(SaveGames->SaveGame(false, TEXT("Slot"), 0, {1}));
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("saved/SaveGames/Slot.sav")).back(), 1);
	FModuleManager::Get().RegisterStaticallyLinkedModule("SaveGameWitness",
		FInitializeStaticallyLinkedModule::CreateLambda([]() -> IModuleInterface* { return new FWitness; }));
	FModuleManager::Get().LoadModuleChecked("SaveGameWitness");
	Editor.Shutdown();
	EXPECT_EQ(SeenAtEnd, SaveGames);
	EXPECT_EQ(GetSaveGames(), nullptr);
}

TEST(FStandaloneEditor, KeepsNoSaveGamesWithoutAFolder)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(EngineOnly(), Error)) << Error;
	EXPECT_EQ(GetSaveGames(), nullptr);
}

TEST(FStandaloneEditor, DoesNotStartWhereSaveGamesCouldGoNowhere)
{
	const FTemporaryFolder Folder;
	FStandaloneEditorOptions Options;
	Options.SavedDir = Folder.Write("saved", "a file");
	FStandaloneEditor Editor;
	std::string Error;
	EXPECT_FALSE(Editor.Start(Options, Error));
	EXPECT_EQ(Error, Options.SavedDir + ": Not a directory");
	ExpectNothingRuns();
	EXPECT_EQ(GetSaveGames(), nullptr);
	Options.SavedDir.clear();
	EXPECT_TRUE(Editor.Start(Options, Error)) << Error;
}

TEST(FStandaloneEditor, BringsMenusUpOnceAllModulesAreLoaded)
{
	for (int32 Round = 0; Round < 2; ++Round)
	{
		int32 Calls = 0;
		UToolMenus::RegisterStartupCallback(FSimpleDelegate::CreateLambda(
			[&Calls]
			{
				EXPECT_TRUE(IsPluginLoaded());
				EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded("PlacementMode"));
				++Calls;
			}));
		FStandaloneEditor Editor;
		std::string Error;
		ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
		EXPECT_EQ(Calls, 1);
		EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 0);
	}
}

TEST(FStandaloneEditor, TakesMenusDownWithAllThatIsInThem)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(EngineOnly(), Error)) << Error;
	const TWeakObjectPtr<UToolMenus> Menus = UToolMenus::Get();
	const FToolMenuOwnerScoped Owner("Somebody");
	const FToolMenuEntry Entry = FToolMenuEntry::InitComboButton("Left", FUIAction(), FOnGetContent());
	Menus->ExtendMenu("LevelEditor.LevelEditorToolBar")->FindOrAddSection("Settings").AddEntry(Entry);
	Editor.Tick();
	ASSERT_TRUE(Menus.IsValid());
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 2);
	Editor.Shutdown();
	EXPECT_FALSE(Menus.IsValid());
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 0);
}

TEST(FStandaloneEditor, DropsWhatWaitsForMenusWhenThePluginFails)
{
	const FTemporaryFolder Folder;
	Folder.Write("ZAVQuillon.uplugin", "{\"Modules\": 3}");
	FStandaloneEditorOptions Options;
	Options.ProjectDir = Folder.File("");
	UToolMenus::RegisterStartupCallback(FSimpleDelegate::CreateLambda([] { ADD_FAILURE() << "menus came up"; }));
	FStandaloneEditor Editor;
	std::string Error;
	EXPECT_FALSE(Editor.Start(Options, Error));
	EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 0);
}

TEST(FStandaloneEditor, FindsNoPluginThatAnEarlierOneFound)
{
	std::string Error;
	FStandaloneEditor().Start(FStandaloneEditorOptions(), Error);
	const FTemporaryFolder Empty;
	FStandaloneEditorOptions Options;
	Options.ProjectDir = Empty.File("");
	EXPECT_FALSE(FStandaloneEditor().Start(Options, Error));
}

TEST(FStandaloneEditor, StartsAgainAfterItWasShutDown)
{
	for (int32 Round = 0; Round < 3; ++Round)
	{
		FStandaloneEditor Editor;
		std::string Error;
		ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
		EXPECT_TRUE(IsPluginLoaded());
		EXPECT_TRUE(FWizardPages::Open(Error).IsValid());
		Editor.Tick();
	}
	ExpectNothingRuns();
}

TEST(FStandaloneEditor, ShutsDownOnlyOnce)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(EngineOnly(), Error)) << Error;
	Editor.Shutdown();
	Editor.Shutdown();
	ExpectNothingRuns();
}

TEST(FStandaloneEditor, CollectsGarbageWhenItTicks)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(EngineOnly(), Error)) << Error;
	const TWeakObjectPtr<UObject> Garbage = NewObject<UWorld>();
	ASSERT_TRUE(Garbage.IsValid());
	Editor.Tick();
	EXPECT_FALSE(Garbage.IsValid());
}

TEST(FStandaloneEditor, RefusesADamagedDescriptorInOneLine)
{
	const FTemporaryFolder Folder;
	Folder.Write("ZAVQuillon.uplugin", "{\"Modules\": 3}");
	FStandaloneEditorOptions Options;
	Options.ProjectDir = Folder.File("");
	FStandaloneEditor Editor;
	std::string Error;
	EXPECT_FALSE(Editor.Start(Options, Error));
	EXPECT_NE(Error.find("ZAVQuillon.uplugin"), std::string::npos) << Error;
	EXPECT_EQ(Error.find('\n'), std::string::npos);
	ExpectNothingRuns();
}
