// Copyright Corvane. MIT License.
#include "StandaloneEditor.h"

#include "ErrorText.h"

#include <climits>
#include <filesystem>
#include <set>
#include <unistd.h>

#include "DetailsPanel.h"
#include "Editor.h"
#include "EditorAssets.h"
#include "EngineText.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Interfaces/IPluginManager.h"
#include "LevelToolBar.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PlatformFeatures.h"
#include "SaveGameFolder.h"
#include "Standalone/SlateNullRenderer.h"
#include "Standalone/ToolMenusStartup.h"
#include "UObject/Package.h"
#include "Widgets/Docking/SDockTab.h"

extern "C" void RegisterReflection_Engine();
extern "C" void RegisterReflection_ToolMenus();
extern "C" void RegisterReflection_UnrealEd();

namespace
{
	const TCHAR* const PluginName = TEXT("ZAVQuillon");

	std::string GetProgramDirectory()
	{
		return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
	}

	/** The module manager keeps its folders from one editor to the next. */
	void AddModuleDirectory(const std::string& Directory)
	{
		static std::set<std::string> Known;
		if (Known.insert(Directory).second)
		{
			FModuleManager::Get().AddBinariesDirectory(UTF8_TO_TCHAR(Directory.c_str()), false);
		}
	}

	/** @return false if Directory is no project with a sound descriptor of the plugin. */
	bool FindPlugin(const std::string& Directory, std::string& OutError)
	{
		const FString File = FString(UTF8_TO_TCHAR(Directory.c_str())) / (FString(PluginName) + TEXT(".uplugin"));
		FText Reason;
		// Read here as well, for the one line that says what is wrong.
		if (FPaths::FileExists(File) && !FPluginDescriptor().Load(File, Reason))
		{
			OutError = FErrorText::OneLine(FEngineText::ForDisplay(Reason.ToString()));
			return false;
		}
		IPluginManager::Get().AddPluginSearchPath(UTF8_TO_TCHAR(Directory.c_str()), true);
		if (!IPluginManager::Get().FindPlugin(PluginName).IsValid())
		{
			OutError =
				FErrorText::ForFile(Directory, "there is no plugin " + FEngineText::ForDisplay(FString(PluginName)));
			return false;
		}
		return true;
	}
}

FStandaloneEditor::FStandaloneEditor() = default;

FStandaloneEditor::~FStandaloneEditor()
{
	Shutdown();
}

bool FStandaloneEditor::Start(const FStandaloneEditorOptions& Options, std::string& OutError)
{
	check(!bRunning && GEditor == nullptr);
	if (!Options.SavedDir.empty() && !FSaveGameFolder::Check(Options.SavedDir, OutError))
	{
		return false;
	}
	bRunning = true;
	StartEngine(Options);
	if (Options.bLoadPlugin && !StartPlugin(Options, OutError))
	{
		Shutdown();
		return false;
	}
	// Not before all modules are there: each may extend what another one makes.
	FToolMenusStartup::Run();
	return true;
}

void FStandaloneEditor::StartEngine(const FStandaloneEditorOptions& Options)
{
	if (!Options.ModuleDir.empty())
	{
		AddModuleDirectory(Options.ModuleDir);
	}
	AddModuleDirectory(GetProgramDirectory());
	if (!Options.SavedDir.empty())
	{
		SaveGames = std::make_unique<FSaveGameFolder>(Options.SavedDir);
		IPlatformFeaturesModule::Get().SetSaveGameSystem(SaveGames.get());
	}
	// Only what the module manager opens registers its types by itself; these are linked.
	RegisterReflection_Engine();
	RegisterReflection_ToolMenus();
	RegisterReflection_UnrealEd();
	for (const TCHAR* Module :
		{TEXT("AssetRegistry"), TEXT("AssetTools"), TEXT("PlacementMode"), TEXT("PropertyEditor")})
	{
		FModuleManager::Get().LoadModuleChecked(Module);
	}
	FSlateApplication::Create();
	FSlateApplication::Get().InitializeRenderer(MakeShared<FSlateNullRenderer>());

	UClass* EditorClass = Options.GetEditorClass ? Options.GetEditorClass() : UEditorEngine::StaticClass();
	GEditor = NewObject<UEditorEngine>(GetTransientPackage(), EditorClass);
	GEditor->AddToRoot();
	GEditor->NewMap();
	SecondWorld = UWorld::CreateWorld(EWorldType::EditorPreview, false);
	Details = std::make_unique<FDetailsPanel>();
	ToolBar = std::make_unique<FLevelToolBar>();
	if (Options.bOpenViewport)
	{
		Viewports.Open({nullptr}, 0);
	}
}

bool FStandaloneEditor::StartPlugin(const FStandaloneEditorOptions& Options, std::string& OutError)
{
	if (!FindPlugin(Options.ProjectDir.empty() ? QUILLON_PROJECT_DIR : Options.ProjectDir, OutError))
	{
		return false;
	}
	for (int32 Phase = ELoadingPhase::EarliestPossible; Phase < ELoadingPhase::None; ++Phase)
	{
		if (!IPluginManager::Get().LoadModulesForEnabledPlugins(static_cast<ELoadingPhase::Type>(Phase)))
		{
			OutError = "a module of the plugin could not be loaded";
			return false;
		}
	}
	return true;
}

void FStandaloneEditor::Shutdown()
{
	if (!bRunning)
	{
		return;
	}
	ClosePanels();
	FEditorAssets::RemoveAll();
	FModuleManager::Get().UnloadModulesAtShutdown();
	IPlatformFeaturesModule::Get().SetSaveGameSystem(nullptr);
	SaveGames.reset();
	FToolMenusStartup::ShutDown();
	IPluginManager::Get().ForgetPlugins();
	Viewports.Close();
	Details.reset();
	ToolBar.reset();
	GEditor->GetEditorWorldContext().World()->DestroyWorld(true);
	SecondWorld->DestroyWorld(false);
	SecondWorld = nullptr;
	GEditor->RemoveFromRoot();
	GEditor->MarkPendingKill();
	GEditor = nullptr;
	FSlateApplication::Shutdown();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	bRunning = false;
}

void FStandaloneEditor::Tick()
{
	FSlateApplication::Get().Tick();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

UWorld* FStandaloneEditor::GetWorld(int32 Index) const
{
	check(Index == 0 || Index == 1);
	return Index == 0 ? GEditor->GetEditorWorldContext().World() : SecondWorld;
}

void FStandaloneEditor::EmptySecondWorld()
{
	// A copy: destroying takes them off the list.
	const TArray<AActor*> Actors = SecondWorld->PersistentLevel->Actors;
	for (AActor* Actor : Actors)
	{
		SecondWorld->DestroyActor(Actor);
	}
}

void FStandaloneEditor::ClosePanels()
{
	Details->Close();
	FSlateNotificationManager::Get().CloseAll();
	// A copy: closing takes them off the list.
	const TArray<FGlobalTabmanager::FOpenTab> Tabs = FGlobalTabmanager::Get()->GetOpenTabs();
	for (const FGlobalTabmanager::FOpenTab& Open : Tabs)
	{
		Open.Tab->RequestCloseTab();
	}
}
