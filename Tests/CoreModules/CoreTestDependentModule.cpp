// Copyright Corvane. MIT License.
#include "CoreTestJournal.h"

#include "Modules/ModuleManager.h"

extern "C" int GetCoreTestNumber();

namespace
{
	/** Is linked with another module and asks for it in its start-up. */
	class FCoreTestDependentModule : public IModuleInterface
	{
	public:
		virtual void StartupModule() override
		{
			FModuleManager& Manager = FModuleManager::Get();
			const bool bVisible = Manager.IsModuleLoaded("CoreTestDependentModule") &&
				Manager.LoadModule("CoreTestDependentModule") == this;
			GetCoreTestJournal().Add(bVisible ? TEXT("Dependent sees itself") : TEXT("Dependent is alone"));
			Manager.LoadModuleChecked("CoreTestModule");
			GetCoreTestJournal().Add(FString::Printf(TEXT("Dependent got %d"), GetCoreTestNumber()));
		}
		virtual void ShutdownModule() override
		{
			const bool bStillThere = FModuleManager::Get().IsModuleLoaded("CoreTestModule");
			GetCoreTestJournal().Add(bStillThere ? TEXT("Dependent ends first") : TEXT("Dependent ends last"));
		}
	};
}

IMPLEMENT_MODULE(FCoreTestDependentModule, CoreTestDependentModule)
