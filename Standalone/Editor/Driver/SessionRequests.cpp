// Copyright Corvane. MIT License.
#include "Driver/SessionRequests.h"

#include "ErrorText.h"

#include "Driver/DriverSession.h"
#include "EditorAssets.h"
#include "EditorView.h"
#include "EngineText.h"
#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

namespace
{
	const ANSICHAR* const EditorModule = "QuillonEditor";

	std::string QuoteModule(const FString& Module)
	{
		return "module " + FErrorText::Quote(FEngineText::ForDisplay(Module));
	}

	/** Throws unless there is such a module. A longer name would be fatal as a name. */
	void CheckModule(const FString& Module)
	{
		const bool bIsName = Module.Len() < NAME_SIZE && !Module.IsEmpty();
		if (!bIsName || !(FModuleManager::Get().IsModuleLoaded(*Module) || FModuleManager::Get().ModuleExists(*Module)))
		{
			throw FRequestError("there is no " + QuoteModule(Module));
		}
	}

	void LoadModule(const FString& Module)
	{
		if (FModuleManager::Get().IsModuleLoaded(*Module))
		{
			throw FRequestError(QuoteModule(Module) + " is loaded already");
		}
		if (!FModuleManager::Get().LoadModule(*Module))
		{
			throw FRequestError(QuoteModule(Module) + " can't be loaded");
		}
	}

	void UnloadModule(FDriverSession& Session, const FString& Module)
	{
		if (!FModuleManager::Get().IsModuleLoaded(*Module))
		{
			throw FRequestError(QuoteModule(Module) + " is not loaded");
		}
		// A registry that is loaded anew would not know what is in memory.
		if (Module == TEXT("AssetRegistry") && FEditorAssets::GetAll().Num() > 0)
		{
			throw FRequestError(QuoteModule(Module) + " keeps the list of the level's assets: make a new level first");
		}
		Session.GetEditor().ClosePanels();
		FModuleManager::Get().UnloadModule(*Module);
	}

	FAnswer ChangeModule(FDriverSession& Session, const FRequest& Request)
	{
		const FString Module = Request.GetText("name");
		const std::string Action = Request.GetUtf8("action");
		if (Action != "load" && Action != "unload")
		{
			throw FRequestError("parameter \"action\": \"load\" or \"unload\" is wanted");
		}
		CheckModule(Module);
		Action == "load" ? LoadModule(Module) : UnloadModule(Session, Module);
		return FAnswer();
	}

	FAnswer Restart(FDriverSession& Session, const FRequest& Request)
	{
		const std::string What = Request.GetUtf8("what");
		if (What != "module" && What != "editor")
		{
			throw FRequestError("parameter \"what\": \"module\" or \"editor\" is wanted");
		}
		if (What == "editor")
		{
			Session.RequestRestart();
			return FAnswer();
		}
		UnloadModule(Session, EditorModule);
		FModuleManager::Get().LoadModuleChecked(EditorModule);
		return FAnswer();
	}

	FAnswer Advance(FDriverSession& Session, const FRequest& Request)
	{
		Session.Advance(Request.GetSeconds("seconds"));
		return FAnswer();
	}

	FAnswer Collect(FDriverSession&, const FRequest&)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		return FAnswer();
	}

	FAnswer TakeScreenshot(FDriverSession& Session, const FRequest& Request)
	{
		if (!Session.GetView())
		{
			throw FRequestError("the null view has no pictures");
		}
		std::string Error;
		if (!Session.GetView()->SaveScreenshot(Request.GetUtf8("file"), Request.GetUtf8("tab"), Error))
		{
			throw FRequestError(Error);
		}
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FSessionRequests::GetAll()
{
	return {{"module", {{"name", EParameterType::Text, true}, {"action", EParameterType::Text, true}}, ChangeModule},
		{"restart", {{"what", EParameterType::Text, true}}, Restart},
		{"advance", {{"seconds", EParameterType::Seconds, true}}, Advance}, {"collect", {}, Collect},
		{"screenshot", {{"file", EParameterType::Text, true}, {"tab", EParameterType::Text, true}}, TakeScreenshot}};
}
