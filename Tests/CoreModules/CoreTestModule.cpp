// Copyright Corvane. MIT License.
#include "CoreTestJournal.h"

#include "Modules/ModuleManager.h"

namespace
{
	class FCoreTestModule : public IModuleInterface
	{
	public:
		virtual void StartupModule() override { GetCoreTestJournal().Add(TEXT("Module starts")); }
		virtual void ShutdownModule() override { GetCoreTestJournal().Add(TEXT("Module ends")); }
		virtual ~FCoreTestModule() { GetCoreTestJournal().Add(TEXT("Module is deleted")); }
	};
}

/** Stands for what is generated for a module with reflected types. */
extern "C" __attribute__((visibility("default"))) void RegisterReflection_CoreTestModule()
{
	GetCoreTestJournal().Add(TEXT("Module is reflected"));
}

/** Lets another library depend on this one. */
extern "C" __attribute__((visibility("default"))) int GetCoreTestNumber()
{
	return 7;
}

IMPLEMENT_MODULE(FCoreTestModule, CoreTestModule)
