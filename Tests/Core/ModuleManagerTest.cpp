// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Utf8.h"

#include "CoreTestJournal.h"
#include "Modules/ModuleManager.h"

namespace
{
	typedef std::vector<std::string> FLines;

	/** The test modules' folder is known, and no module is loaded before or after a test. */
	class FModuleManagerTest : public ::testing::Test
	{
	protected:
		static void SetUpTestSuite() { FModuleManager::Get().AddBinariesDirectory(TEXT(CORE_TEST_MODULES), false); }

		virtual void SetUp() override { GetCoreTestJournal().Reset(); }
		virtual void TearDown() override { Manager.UnloadModulesAtShutdown(); }

		/** What the test modules did since the last call. */
		static FLines TakeJournal()
		{
			FLines Lines;
			for (const FString& Line : GetCoreTestJournal())
			{
				Lines.push_back(Utf8(Line));
			}
			GetCoreTestJournal().Reset();
			return Lines;
		}

		FModuleManager& Manager = FModuleManager::Get();
	};

	/** Made by the program itself. */
	class FStaticModule : public IModuleInterface
	{
	public:
		FStaticModule(const TCHAR* InName, bool bInAutomatic) : Name(InName), bAutomatic(bInAutomatic) {}
		virtual void StartupModule() override { GetCoreTestJournal().Add(Name + TEXT(" starts")); }
		virtual void ShutdownModule() override { GetCoreTestJournal().Add(Name + TEXT(" ends")); }
		virtual bool SupportsAutomaticShutdown() override { return bAutomatic; }

		FString Name;
		bool bAutomatic;
	};

	void RegisterStatic(const TCHAR* Name, bool bAutomatic = true)
	{
		FModuleManager::Get().RegisterStaticallyLinkedModule(Name,
			FInitializeStaticallyLinkedModule::CreateLambda(
				[Name, bAutomatic]() -> IModuleInterface* { return new FStaticModule(Name, bAutomatic); }));
	}
}

TEST_F(FModuleManagerTest, LoadsAModuleFromItsFileAndStartsIt)
{
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestModule"));
	IModuleInterface* const Module = Manager.LoadModule("CoreTestModule");
	ASSERT_NE(Module, nullptr);
	EXPECT_TRUE(Manager.IsModuleLoaded("CoreTestModule"));
	EXPECT_EQ(Manager.GetModule("CoreTestModule"), Module);
	EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>("CoreTestModule"), Module);
	EXPECT_EQ(TakeJournal().back(), "Module starts");
}

TEST_F(FModuleManagerTest, LoadingALoadedModuleReturnsIt)
{
	IModuleInterface* const Module = Manager.LoadModule("CoreTestModule");
	TakeJournal();
	EXPECT_EQ(Manager.LoadModule("CoreTestModule"), Module);
	EXPECT_EQ(&Manager.LoadModuleChecked("CoreTestModule"), Module);
	EXPECT_EQ(&FModuleManager::LoadModuleChecked<IModuleInterface>("CORETESTMODULE"), Module) << "names ignore case";
	EXPECT_EQ(TakeJournal(), FLines());
}

TEST_F(FModuleManagerTest, UnloadingEndsAndDeletesTheModule)
{
	Manager.LoadModule("CoreTestModule");
	TakeJournal();
	EXPECT_TRUE(Manager.UnloadModule("CoreTestModule"));
	EXPECT_EQ(TakeJournal(), (FLines{"Module ends", "Module is deleted"}));
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestModule"));
	EXPECT_EQ(Manager.GetModule("CoreTestModule"), nullptr);
	EXPECT_FALSE(Manager.UnloadModule("CoreTestModule"));
	EXPECT_FALSE(Manager.UnloadModule("NeverHeardOf"));
}

TEST_F(FModuleManagerTest, ReflectionIsRegisteredOnceBeforeTheFirstStart)
{
	// In a process of its own from the start, as other tests load the module too.
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_EXIT(
		{
			Manager.LoadModule("CoreTestModule");
			Manager.UnloadModule("CoreTestModule");
			Manager.LoadModule("CoreTestModule");
			for (const std::string& Line : TakeJournal())
			{
				std::fprintf(stderr, "%s.", Line.c_str());
			}
			std::_Exit(0);
		},
		::testing::ExitedWithCode(0),
		"^Module is reflected.Module starts.Module ends.Module is deleted.Module starts.$");
}

TEST_F(FModuleManagerTest, ModuleIsVisibleWhileItStarts)
{
	Manager.LoadModule("CoreTestDependentModule");
	const FLines Journal = TakeJournal();
	ASSERT_FALSE(Journal.empty());
	EXPECT_EQ(Journal.front(), "Dependent sees itself");
	EXPECT_EQ(Journal.back(), "Dependent got 7");
}

TEST_F(FModuleManagerTest, TakesTheFactoryOfTheFileItself)
{
	// This module is linked with another one, which has a factory too.
	Manager.LoadModule("CoreTestDependentModule");
	TakeJournal();
	Manager.UnloadModule("CoreTestDependentModule");
	EXPECT_EQ(TakeJournal(), FLines{"Dependent ends first"});
}

TEST_F(FModuleManagerTest, RefusesAFileWhoseOnlyFactoryIsAnotherFiles)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_TRUE(Manager.ModuleExists(TEXT("CoreTestNoFactory")));
	EXPECT_EQ(Manager.LoadModuleWithFailureReason("CoreTestNoFactory", Result), nullptr);
	EXPECT_EQ(Result, EModuleLoadResult::FileIncompatible);
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestNoFactory"));
	EXPECT_EQ(TakeJournal(), FLines());
}

TEST_F(FModuleManagerTest, RefusesWhatIsNoLibrary)
{
	const std::filesystem::path Folder = std::filesystem::path(::testing::TempDir()) / "RefusesWhatIsNoLibrary";
	std::filesystem::create_directories(Folder);
	std::ofstream(Folder / "libCoreTestGarbage.so") << "not a library";
	Manager.AddBinariesDirectory(*FromUtf8(Folder.string()), false);
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(Manager.LoadModuleWithFailureReason("CoreTestGarbage", Result), nullptr);
	EXPECT_EQ(Result, EModuleLoadResult::CouldNotBeOpenedByOS);
	EXPECT_EXIT(Manager.LoadModuleChecked("CoreTestGarbage"), ::testing::ExitedWithCode(3),
		"CoreTestGarbage: the file could not be opened: .*libCoreTestGarbage.so");
}

TEST_F(FModuleManagerTest, FindsNoFileForAnUnknownName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	FString Path(TEXT("before"));
	EXPECT_FALSE(Manager.ModuleExists(TEXT("NeverHeardOf"), &Path));
	EXPECT_TRUE(Path.IsEmpty());
	EXPECT_EQ(Manager.LoadModuleWithFailureReason("NeverHeardOf", Result), nullptr);
	EXPECT_EQ(Result, EModuleLoadResult::FileNotFound);
	EXPECT_EQ(Manager.LoadModule("NeverHeardOf"), nullptr);
}

TEST_F(FModuleManagerTest, NamesThatAreNoNamesLeadOutOfNoFolder)
{
	const std::filesystem::path Folder = std::filesystem::path(::testing::TempDir()) / "NamesThatAreNoNames";
	std::filesystem::create_directories(Folder / "lib");
	std::ofstream(Folder / "libCoreTestOutside.so") << "there";
	Manager.AddBinariesDirectory(*FromUtf8(Folder.string()), false);
	ASSERT_TRUE(Manager.ModuleExists(TEXT("CoreTestOutside")));
	EXPECT_FALSE(Manager.ModuleExists(TEXT("/../libCoreTestOutside")));
	EXPECT_FALSE(Manager.ModuleExists(TEXT("")));
	EXPECT_EQ(Manager.LoadModule(NAME_None), nullptr);
}

TEST_F(FModuleManagerTest, TellsTheFileOfAModule)
{
	FString Path;
	EXPECT_TRUE(Manager.ModuleExists(TEXT("CoreTestModule"), &Path));
	EXPECT_EQ(Utf8(Path), std::string(CORE_TEST_MODULES) + "/libCoreTestModule.so");
}

TEST_F(FModuleManagerTest, MissingModuleIsFatalWhenChecked)
{
	EXPECT_EXIT(Manager.LoadModuleChecked("NeverHeardOf"), ::testing::ExitedWithCode(3),
		"Assertion failed: .*\nNeverHeardOf: no such file");
}

TEST_F(FModuleManagerTest, RegisteredFactoryComesBeforeAFile)
{
	// In a process of its own: a factory stays.
	EXPECT_EXIT(
		{
			RegisterStatic(TEXT("CoreTestModule"));
			Manager.LoadModule("CoreTestModule");
			std::fprintf(stderr, "%s", TakeJournal().at(0).c_str());
			std::_Exit(0);
		},
		::testing::ExitedWithCode(0), "^CoreTestModule starts$");
}

TEST_F(FModuleManagerTest, RegisteredFactoryNeedsNoFile)
{
	RegisterStatic(TEXT("CoreTestStatic"));
	EXPECT_TRUE(Manager.ModuleExists(TEXT("CoreTestStatic")));
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestStatic"));
	EXPECT_TRUE(FModuleManager::LoadModuleChecked<FStaticModule>("CoreTestStatic").bAutomatic);
}

TEST_F(FModuleManagerTest, FactoryThatMakesNothingFails)
{
	Manager.RegisterStaticallyLinkedModule("CoreTestNothing",
		FInitializeStaticallyLinkedModule::CreateLambda([]() -> IModuleInterface* { return nullptr; }));
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(Manager.LoadModuleWithFailureReason("CoreTestNothing", Result), nullptr);
	EXPECT_EQ(Result, EModuleLoadResult::FailedToInitialize);
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestNothing"));
}

TEST_F(FModuleManagerTest, UnloadsTheLastStartedFirst)
{
	RegisterStatic(TEXT("CoreTestA"));
	RegisterStatic(TEXT("CoreTestB"));
	Manager.LoadModule("CoreTestB");
	Manager.LoadModule("CoreTestA");
	TakeJournal();
	Manager.UnloadModulesAtShutdown();
	EXPECT_EQ(TakeJournal(), (FLines{"CoreTestA ends", "CoreTestB ends"}));
	EXPECT_FALSE(Manager.IsModuleLoaded("CoreTestA"));
}

TEST_F(FModuleManagerTest, ModuleThatAnotherLoadsInItsStartEndsAfterIt)
{
	Manager.LoadModule("CoreTestDependentModule");
	TakeJournal();
	Manager.UnloadModulesAtShutdown();
	EXPECT_EQ(TakeJournal(), (FLines{"Dependent ends first", "Module ends", "Module is deleted"}));
}

TEST_F(FModuleManagerTest, ModuleMayStayAtShutdown)
{
	RegisterStatic(TEXT("CoreTestStays"), false);
	Manager.LoadModule("CoreTestStays");
	Manager.UnloadModulesAtShutdown();
	EXPECT_TRUE(Manager.IsModuleLoaded("CoreTestStays"));
	EXPECT_TRUE(Manager.UnloadModule("CoreTestStays"));
}
