// Copyright Corvane. MIT License.
#include "Driver/RegisteredRequests.h"

#include "AuthDelegates.h"
#include "EngineText.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Docking/TabManager.h"
#include "IPlacementModeModule.h"
#include "LevelToolBar.h"
#include "PropertyEditorModule.h"
#include "Standalone/BindingCounts.h"
#include "Standalone/StyleInspector.h"
#include "Standalone/ToolMenusStartup.h"

namespace
{
	FAnswer SortNames(TArray<FName> Names)
	{
		Names.StableSort([](const FName& Left, const FName& Right) { return Left.LexicalLess(Right); });
		FAnswer Answer = FAnswer::array();
		for (const FName& Name : Names)
		{
			Answer.push_back(FEngineText::ForDisplay(Name));
		}
		return Answer;
	}

	FAnswer ListCommands()
	{
		TArray<TSharedPtr<FBindingContext>> Contexts;
		FInputBindingManager::Get().GetKnownInputContexts(Contexts);
		Contexts.StableSort([](const TSharedPtr<FBindingContext>& Left, const TSharedPtr<FBindingContext>& Right)
			{ return Left->GetContextName().LexicalLess(Right->GetContextName()); });
		FAnswer Answer = FAnswer::object();
		for (const TSharedPtr<FBindingContext>& Context : Contexts)
		{
			TArray<TSharedPtr<FUICommandInfo>> Commands;
			FInputBindingManager::Get().GetCommandInfosFromContext(Context->GetContextName(), Commands);
			TArray<FName> Names;
			for (const TSharedPtr<FUICommandInfo>& Command : Commands)
			{
				Names.Add(Command->GetCommandName());
			}
			Answer[FEngineText::ForDisplay(Context->GetContextName())] = SortNames(Names);
		}
		return Answer;
	}

	FAnswer ListPlacement()
	{
		TArray<FName> Handles;
		// Asking for the module otherwise would load it.
		if (const auto* Module = FModuleManager::GetModulePtr<IPlacementModeModule>("PlacementMode"))
		{
			TArray<FPlacementCategoryInfo> Categories;
			Module->GetSortedCategories(Categories);
			for (const FPlacementCategoryInfo& Category : Categories)
			{
				Handles.Add(Category.UniqueHandle);
			}
		}
		return SortNames(Handles);
	}

	FAnswer ListLayouts()
	{
		TArray<FName> Properties;
		TArray<FName> Classes;
		if (const auto* Module = FModuleManager::GetModulePtr<FPropertyEditorModule>("PropertyEditor"))
		{
			Properties = Module->GetCustomPropertyTypeLayoutNames();
			Classes = Module->GetCustomClassLayoutNames();
		}
		return {{"properties", SortNames(Properties)}, {"classes", SortNames(Classes)}};
	}

	FAnswer ListRegistered(FDriverSession&, const FRequest&)
	{
		return {{"styles", SortNames(FStyleInspector::GetStyleSetNames())},
			{"tabs", SortNames(FGlobalTabmanager::Get()->GetTabSpawnerNames())}, {"commands", ListCommands()},
			{"layouts", ListLayouts()}, {"placement", ListPlacement()},
			// The editor's own buttons are always there.
			{"menuOwners", FToolMenusStartup::GetOwnerCount(FLevelToolBar::GetOwner())},
			{"startupCallbacks", FToolMenusStartup::GetStartupCallbackCount()},
			{"upgradeHandlers", AuthDelegates::OnUpgradeAvailable.GetBindingCount()},
			// The event is the plugin's own affair; what is bound to it is known all the same.
			{"lostStateHandlers", FBindingCounts::Count("void (FActiveSenderNamesCustomisation::*)(bool)")}};
	}
}

std::vector<FRequestDefinition> FRegisteredRequests::GetAll()
{
	return {{"registered", {}, ListRegistered}};
}
