// Copyright Corvane. MIT License.
#include "DrivenEditor.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>

#include "AllocationCount.h"
#include "FileAccessRecorder.h"

#include "AuthDelegates.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Docking/TabManager.h"
#include "IPlacementModeModule.h"
#include "IPropertyRowGenerator.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Standalone/ToolMenusStartup.h"
#include "LevelToolBar.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"

using nlohmann::json;

namespace
{
	bool Contains(const json& List, const char* Name)
	{
		return std::find(List.begin(), List.end(), Name) != List.end();
	}

	/** What of the module is registered at one moment. */
	struct FSeen
	{
		static FSeen Look()
		{
			FSeen Seen;
			Seen.bLooked = true;
			Seen.bStyle = FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle") != nullptr;
			Seen.bTab = FGlobalTabmanager::Get()->HasTabSpawner("CineStreamWizard");
			Seen.bCommands =
				FInputBindingManager::Get().FindCommandInContext("QuillonEditor", "PluginVersion").IsValid();
			Seen.bCategory = FModuleManager::Get().IsModuleLoaded("PlacementMode") &&
				IPlacementModeModule::Get().GetRegisteredPlacementCategory("Corvane");
			Seen.bHears = AuthDelegates::OnUpgradeAvailable.IsBound();
			return Seen;
		}
		/** Looks once the last copy of what this returns is gone. */
		std::shared_ptr<void> LookWhenReleased()
		{
			return std::shared_ptr<void>(nullptr,
				[this](void*)
				{
					*this = Look();
					MenuOwners = FToolMenusStartup::GetOwnerCount(FLevelToolBar::GetOwner());
				});
		}
		bool HasAll() const { return bStyle && bTab && bCommands; }

		bool bLooked = false;
		bool bStyle = false;
		bool bTab = false;
		bool bCommands = false;
		bool bCategory = false;
		/** Announcements of releases. */
		bool bHears = false;
		int32 MenuOwners = -1;
	};

	/** The category of the Place Actors panel, or null. */
	json FindCategory(const json& Placement)
	{
		for (const json& Category : Placement["categories"])
		{
			if (Category["handle"] == "Corvane")
			{
				return Category;
			}
		}
		return nullptr;
	}
}

/** The module among the editor's own modules: what it leaves with them, and what it does without them. */
class FModuleHosts : public FDrivenEditor
{
protected:
	/** The toolbar's buttons but for the editor's own. */
	json FindButtons()
	{
		json Buttons = json::array();
		const json ToolBar = Ask("toolbar");
		for (const json& Button : ToolBar["buttons"])
		{
			if (Button["section"] != "File" && Button["section"] != "Edit")
			{
				Buttons.push_back(Button);
			}
		}
		return Buttons;
	}
};

TEST_F(FModuleHosts, ReceivesWhatTheModuleRegisters)
{
	const json Registered = Ask("registered");
	EXPECT_TRUE(Contains(Registered["styles"], "QuillonEditorStyle"));
	EXPECT_TRUE(Contains(Registered["tabs"], "CineStreamWizard"));
	EXPECT_TRUE(Contains(Registered["placement"], "Corvane"));
	ASSERT_TRUE(Registered["commands"].contains("QuillonEditor"));
	EXPECT_EQ(Registered["commands"]["QuillonEditor"].size(), 8U);
	EXPECT_EQ(Registered["layouts"]["properties"], json({"ZAVSpoutReceiverInterface"}));
	EXPECT_EQ(Registered["layouts"]["classes"], json({"ZAVCaptureComponent"}));
	EXPECT_EQ(Registered["menuOwners"], 1);
	EXPECT_EQ(Registered["startupCallbacks"], 0);
	EXPECT_EQ(Registered["upgradeHandlers"], 1);
}

TEST_F(FModuleHosts, AreLeftCleanAtShutDown)
{
	Module("unload");
	const json Registered = Ask("registered");
	EXPECT_FALSE(Contains(Registered["styles"], "QuillonEditorStyle"));
	EXPECT_FALSE(Contains(Registered["tabs"], "CineStreamWizard"));
	EXPECT_FALSE(Contains(Registered["placement"], "Corvane"));
	EXPECT_FALSE(Registered["commands"].contains("QuillonEditor"));
	EXPECT_EQ(Registered["menuOwners"], 0);
	EXPECT_EQ(Registered["startupCallbacks"], 0);
	EXPECT_EQ(Registered["upgradeHandlers"], 0);
	EXPECT_EQ(FindButtons().size(), 0U);
}

TEST_F(FModuleHosts, KeepWhoElseListensToAnnouncements)
{
	int32 Heard = 0;
	const FDelegateHandle Handle = AuthDelegates::OnUpgradeAvailable.AddLambda([&Heard](FString, FString) { ++Heard; });
	Module("unload");
	Ask({{"do", "announce"}, {"version", "2.1"}, {"address", "Release_2.1.zip"}});
	AuthDelegates::OnUpgradeAvailable.Remove(Handle);
	EXPECT_EQ(Heard, 1);
}

TEST_F(FModuleHosts, KeepTheDetailsLayoutsAfterShutDown)
{
	const json Before = Ask("registered")["layouts"];
	Module("unload");
	EXPECT_EQ(Ask("registered")["layouts"], Before);
	const TSharedRef<IPropertyRowGenerator> Panel =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor")
			.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Panel->SetObjects({FindObject<UClass>(ANY_PACKAGE, TEXT("ZAVSpoutReceiverManager"))->GetDefaultObject()});
	EXPECT_EQ(Panel->GetRootTreeNodes().Num(), 1) << "whose factories are still good";
}

TEST_F(FModuleHosts, ShowDetailsThatAreOpenInTheNewLayouts)
{
	Module("unload");
	const TSharedRef<IPropertyRowGenerator> Panel =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor")
			.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	int Refreshed = 0;
	Panel->OnRowsRefreshed().AddLambda([&Refreshed] { ++Refreshed; });
	Module("load");
	EXPECT_EQ(Refreshed, 1);
}

TEST_F(FModuleHosts, ComeBackToWhereTheyWereAfterAHundredStarts)
{
	const json Before = Ask("registered");
	const json Placement = Ask("placement");
	const json Toolbar = Ask("toolbar");
	for (int Round = 0; Round < 100; ++Round)
	{
		Module("unload");
		Module("load");
	}
	EXPECT_EQ(Ask("registered"), Before);
	EXPECT_EQ(Ask("placement"), Placement);
	EXPECT_EQ(Ask("toolbar"), Toolbar);
}

TEST_F(FModuleHosts, GetTheButtonOnceMenusAreUp)
{
	Module("unload");
	FToolMenusStartup::ShutDown();
	Module("load");
	EXPECT_EQ(Ask("registered")["startupCallbacks"], 1);
	EXPECT_EQ(FindButtons().size(), 0U);
	FToolMenusStartup::Run();
	EXPECT_EQ(Ask("registered")["startupCallbacks"], 0);
	EXPECT_EQ(FindButtons().size(), 1U);
}

TEST_F(FModuleHosts, GetNoButtonOfAModuleThatStoppedBeforeMenusWereUp)
{
	Module("unload");
	FToolMenusStartup::ShutDown();
	Module("load");
	Module("unload");
	EXPECT_EQ(Ask("registered")["startupCallbacks"], 0);
	FToolMenusStartup::Run();
	EXPECT_EQ(FindButtons().size(), 0U);
}

TEST_F(FModuleHosts, GetTheTabBeforeTheCommands)
{
	Module("unload");
	// Both names are taken: the first complaint tells.
	EXPECT_EXIT(
		{
			FGlobalTabmanager::Get()->RegisterNomadTabSpawner("CineStreamWizard", FOnSpawnTab());
			TSharedPtr<FUICommandInfo> Theirs;
			FUICommandInfo::MakeCommandInfo(
				MakeShared<FBindingContext>(FName("QuillonEditor"), FText(), FName(), FName()), Theirs, "Theirs",
				FText(), FText(), FSlateIcon(), EUserInterfaceActionType::Button, FInputChord());
			FModuleManager::Get().LoadModule("QuillonEditor");
		},
		::testing::ExitedWithCode(3), "Tab spawner 'CineStreamWizard'");
}

TEST_F(FModuleHosts, GetTheDetailsLayoutsAfterTheMenusAndBeforeThePlacementCategory)
{
	Module("unload");
	Module("unload", "PropertyEditor");
	EXPECT_EXIT(
		{
			FModuleManager::Get().RegisterStaticallyLinkedModule("PropertyEditor",
				FInitializeStaticallyLinkedModule::CreateLambda(
					[this]() -> IModuleInterface*
					{
						const FSeen Seen = FSeen::Look();
						const bool bButton = FindButtons().size() == 1;
						std::_Exit(Seen.HasAll() && bButton && !Seen.bCategory && !Seen.bHears ? 0 : 1);
					}));
			FModuleManager::Get().LoadModule("QuillonEditor");
		},
		::testing::ExitedWithCode(0), "");
}

TEST_F(FModuleHosts, GetThePlacementCategoryLast)
{
	Module("unload");
	Module("unload", "PlacementMode");
	EXPECT_EXIT(
		{
			FModuleManager::Get().RegisterStaticallyLinkedModule("PlacementMode",
				FInitializeStaticallyLinkedModule::CreateLambda(
					[this]() -> IModuleInterface*
					{
						const FSeen Seen = FSeen::Look();
						const bool bButton = FindButtons().size() == 1;
						std::_Exit(Seen.HasAll() && bButton && Seen.bHears ? 0 : 1);
					}));
			FModuleManager::Get().LoadModule("QuillonEditor");
		},
		::testing::ExitedWithCode(0), "");
}

TEST_F(FModuleHosts, LoseThePlacementCategoryFirst)
{
	Module("unload");
	FSeen Seen;
	{
		FPlacementCategoryInfo Theirs(FText(), "Corvane", FString());
		Theirs.CustomGenerator = [Watch = Seen.LookWhenReleased()]() { return SNullWidget::NullWidget; };
		IPlacementModeModule::Get().RegisterPlacementCategory(Theirs);
	}
	Module("load");
	Module("unload");
	EXPECT_TRUE(Seen.bLooked);
	EXPECT_TRUE(Seen.HasAll());
	EXPECT_TRUE(Seen.bHears);
	EXPECT_EQ(Seen.MenuOwners, 1);
}

TEST_F(FModuleHosts, LoseTheMenusAfterTheCategoryAndBeforeTheCommands)
{
	FSeen Seen;
	{
		const FToolMenuOwnerScoped Owner(FModuleManager::Get().GetModule("QuillonEditor"));
		UToolMenus::Get()
			->ExtendMenu("LevelEditor.Other")
			->FindOrAddSection("Section")
			.AddEntry(FToolMenuEntry::InitComboButton("Entry", FUIAction(),
				FOnGetContent::CreateLambda([Watch = Seen.LookWhenReleased()]() { return SNullWidget::NullWidget; })));
	}
	Module("unload");
	EXPECT_TRUE(Seen.bLooked);
	EXPECT_FALSE(Seen.bCategory);
	EXPECT_FALSE(Seen.bHears);
	EXPECT_TRUE(Seen.HasAll());
}

TEST_F(FModuleHosts, LoseTheTabAfterTheCommandsAndBeforeTheStyle)
{
	FSeen Seen;
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("CineStreamWizard");
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner("CineStreamWizard",
		FOnSpawnTab::CreateLambda([Watch = Seen.LookWhenReleased()](const FSpawnTabArgs&) { return SNew(SDockTab); }));
	Module("unload");
	EXPECT_TRUE(Seen.bLooked);
	EXPECT_FALSE(Seen.bCommands);
	EXPECT_EQ(Seen.MenuOwners, 0);
	EXPECT_TRUE(Seen.bStyle);
}

TEST_F(FModuleHosts, GetCommandsThatWorkWhenOneModuleObjectIsStoppedAndStarted)
{
	IModuleInterface* const Object = FModuleManager::Get().GetModule("QuillonEditor");
	Object->ShutdownModule();
	Object->StartupModule();
	Ask({{"do", "choose"}, {"button", "Corvane"}, {"entry", "Plugin Version"}});
	EXPECT_EQ(Ask("outside")["messages"].size(), 1U);
}

TEST_F(FModuleHosts, WithoutPlacementModeStartIsFatal)
{
	Module("unload");
	Module("unload", "PlacementMode");
	// In the process that dies only: a factory stays registered.
	EXPECT_EXIT(
		{
			FModuleManager::Get().RegisterStaticallyLinkedModule("PlacementMode",
				FInitializeStaticallyLinkedModule::CreateLambda([]() -> IModuleInterface* { return nullptr; }));
			FModuleManager::Get().LoadModule("QuillonEditor");
		},
		::testing::ExitedWithCode(3), "PlacementMode");
}

TEST_F(FModuleHosts, WithoutPropertyEditorStartIsFatal)
{
	Module("unload");
	Module("unload", "PropertyEditor");
	EXPECT_EXIT(
		{
			FModuleManager::Get().RegisterStaticallyLinkedModule("PropertyEditor",
				FInitializeStaticallyLinkedModule::CreateLambda([]() -> IModuleInterface* { return nullptr; }));
			FModuleManager::Get().LoadModule("QuillonEditor");
		},
		::testing::ExitedWithCode(3), "PropertyEditor");
}

TEST_F(FModuleHosts, WithoutPlacementModeShutDownDoesAllTheRest)
{
	Module("unload", "PlacementMode");
	Module("unload");
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("PlacementMode")) << "loaded again for nothing";
	const json Registered = Ask("registered");
	EXPECT_FALSE(Contains(Registered["styles"], "QuillonEditorStyle"));
	EXPECT_FALSE(Contains(Registered["tabs"], "CineStreamWizard"));
	EXPECT_FALSE(Registered["commands"].contains("QuillonEditor"));
	EXPECT_EQ(Registered["menuOwners"], 0);
	EXPECT_EQ(Registered["upgradeHandlers"], 0);
}

TEST_F(FModuleHosts, LoseAllButTheSubscriptionToAModuleThatNeverSubscribed)
{
	void* const Library = dlopen("libQuillonEditor.so", RTLD_NOW | RTLD_NOLOAD);
	ASSERT_NE(Library, nullptr);
	const auto Create = reinterpret_cast<IModuleInterface* (*)()>(dlsym(Library, "InitializeModule"));
	ASSERT_NE(Create, nullptr);
	// In the process that dies only: the module that has started finds everything gone.
	EXPECT_EXIT(
		{
			Create()->ShutdownModule();
			const FSeen Seen = FSeen::Look();
			std::_Exit(Seen.bHears && !Seen.bStyle && !Seen.bTab && !Seen.bCommands && !Seen.bCategory ? 0 : 1);
		},
		::testing::ExitedWithCode(0), "");
}

TEST_F(FModuleHosts, KeepACategoryThatIsThereAlreadyAndGetItsItems)
{
	Module("unload");
	IPlacementModeModule::Get().RegisterPlacementCategory(
		FPlacementCategoryInfo(FText::FromString(TEXT("Theirs")), "Corvane", TEXT("PMTheirs"), 3, false));
	Module("load");
	const json Category = FindCategory(Ask("placement"));
	EXPECT_EQ(Category["name"], "Theirs");
	EXPECT_EQ(Category["tag"], "PMTheirs");
	EXPECT_EQ(Category["order"], 3);
	EXPECT_EQ(Category["sortable"], false);
	EXPECT_EQ(Category["items"], json({"ZAVCineCamCapture", "ZAVSpoutSenderManager", "ZAVSpoutReceiverManager"}));
}

TEST_F(FModuleHosts, GetEachItemAgainWhenTheModuleIsStartedASecondTime)
{
	const json Before = FindCategory(Ask("placement"));
	IModuleInterface* const Object = FModuleManager::Get().GetModule("QuillonEditor");
	// Only the tab manager minds a second start.
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("CineStreamWizard");
	Object->StartupModule();
	// The first start's subscription would outlive the module, which knows of the second alone.
	EXPECT_EQ(AuthDelegates::OnUpgradeAvailable.RemoveAll(Object), 2);
	json After = FindCategory(Ask("placement"));
	EXPECT_EQ(After["items"],
		json({"ZAVCineCamCapture", "ZAVSpoutSenderManager", "ZAVSpoutReceiverManager", "ZAVCineCamCapture",
			"ZAVSpoutSenderManager", "ZAVSpoutReceiverManager"}));
	EXPECT_EQ(After["shown"].size(), 6U);
	for (const char* Setting : {"handle", "name", "nameId", "tag", "order", "sortable"})
	{
		EXPECT_EQ(After[Setting], Before[Setting]) << Setting;
	}
	EXPECT_EQ(FindButtons().size(), 1U) << "a button of one name is there once";
}

TEST_F(FModuleHosts, ShowItsCategoryByItsNumberAndItsItemsByName)
{
	const json Categories = Ask("placement")["categories"];
	for (size_t Index = 1; Index < Categories.size(); ++Index)
	{
		EXPECT_LE(Categories[Index - 1]["order"], Categories[Index]["order"]);
	}
	EXPECT_GE(Categories.size(), 2U) << "it stands among the editor's own";
	EXPECT_EQ(FindCategory(Ask("placement"))["shown"],
		json({"ZAVCineCamCapture", "ZAVSpoutReceiverManager", "ZAVSpoutSenderManager"}));
}

TEST_F(FModuleHosts, AreUntouchedByAModuleThatIsUnloadedWithItsTabOpen)
{
	Ask({{"do", "choose"}, {"button", "Corvane"}, {"entry", "Cine Stream Wizard"}});
	ASSERT_EQ(Ask("tabs")["tabs"].size(), 1U);
	Module("unload");
	EXPECT_EQ(Ask("tabs")["tabs"].size(), 0U);
	Module("load");
	Ask({{"do", "choose"}, {"button", "Corvane"}, {"entry", "Cine Stream Wizard"}});
	Ask({{"do", "type"}, {"tab", "CineStreamWizard"}, {"text", "Main"}});
	Ask({{"do", "click"}, {"tab", "CineStreamWizard"}, {"text", "Create Instant Cinestream Output"}});
	EXPECT_EQ(Ask("assets")["assets"].size(), 1U);
	EXPECT_EQ(Ask("outside")["ensures"].size(), 0U);
}

TEST_F(FModuleHosts, SeeNoFileOpenedByAStart)
{
	Module("unload");
	FFileAccessRecorder::Start();
	FModuleManager::Get().LoadModule("QuillonEditor");
	const std::vector<std::string> Opened = FFileAccessRecorder::Stop();
	EXPECT_EQ(Opened, std::vector<std::string>());
	ASSERT_TRUE(FModuleManager::Get().IsModuleLoaded("QuillonEditor"));
	FFileAccessRecorder::Start();
	EXPECT_EQ(std::fopen("/does/not/exist", "r"), nullptr);
	EXPECT_EQ(FFileAccessRecorder::Stop(), std::vector<std::string>{"/does/not/exist"}) << "the recorder records";
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FModuleHosts, KeepNoMemoryOfModulesThatStartedAndStopped)
{
	const auto CountAfter = [](int Cycles)
	{
		for (int Cycle = 0; Cycle < Cycles; ++Cycle)
		{
			FModuleManager::Get().UnloadModule("QuillonEditor");
			FModuleManager::Get().LoadModule("QuillonEditor");
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		return FAllocationCount::GetLive();
	};
	const int64 AfterTen = CountAfter(10);
	EXPECT_EQ(CountAfter(990), AfterTen);
}
#endif
