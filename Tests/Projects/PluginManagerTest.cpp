// Copyright Corvane. MIT License.
#include "TempFolder.h"

#include <gtest/gtest.h>

#include "Interfaces/IPluginManager.h"
#include "Modules/ModuleManager.h"

namespace
{
	/** A search path with plugins of one test's own. The manager is the process's: each test takes names of its own. */
	class IPluginManagerTest : public ::testing::Test
	{
	protected:
		void Search() { Manager.AddPluginSearchPath(Folder.Path.c_str()); }
		void TearDown() override
		{
			std::filesystem::remove_all(Folder.Path);
			Manager.RefreshPluginsList();
		}

		FTempFolder Folder;
		IPluginManager& Manager = IPluginManager::Get();
	};

	std::vector<std::string>& Started()
	{
		static std::vector<std::string> Names;
		return Names;
	}

	IModuleInterface* Start(FString Name)
	{
		Started().push_back(TCHAR_TO_UTF8(*Name));
		return new FDefaultModuleImpl();
	}

	/** Makes modules that note their start. */
	void Register(std::initializer_list<const char*> Names)
	{
		Started().clear();
		for (const char* Name : Names)
		{
			FModuleManager::Get().RegisterStaticallyLinkedModule(
				Name, FInitializeStaticallyLinkedModule::CreateStatic(&Start, FString(Name)));
		}
	}
}

TEST_F(IPluginManagerTest, FindsAPluginInTheFolderItself)
{
	Folder.Write("Alpha.uplugin", R"({"VersionName": "1.0"})");
	Search();
	const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(TEXT("Alpha"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_TRUE(Plugin->GetDescriptor().VersionName.Equals(TEXT("1.0")));
}

TEST_F(IPluginManagerTest, FindsPluginsInThePluginsFolder)
{
	Folder.Write("Plugins/One/Beta.uplugin", "{}");
	Folder.Write("Plugins/Two/Gamma.uplugin", "{}");
	Search();
	EXPECT_TRUE(Manager.FindPlugin(TEXT("Beta")).IsValid());
	EXPECT_TRUE(Manager.FindPlugin(TEXT("Gamma")).IsValid());
}

TEST_F(IPluginManagerTest, NamesAPluginLikeItsFile)
{
	Folder.Write("Plugins/Folder/My.Delta.uplugin", R"({"FriendlyName": "Other"})");
	Search();
	const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(TEXT("my.delta"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_TRUE(Plugin->GetName().Equals(TEXT("My.Delta")));
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Folder")).IsValid());
}

TEST_F(IPluginManagerTest, HasNullForAnUnknownPlugin)
{
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Nobody")).IsValid());
}

TEST_F(IPluginManagerTest, GivesTheAbsoluteFolderWithoutSlash)
{
	Folder.Write("Plugins/One/Epsilon.uplugin", "{}");
	Manager.AddPluginSearchPath((std::filesystem::relative(Folder.Path) / "").c_str());
	const TSharedPtr<IPlugin> Plugin = Manager.FindPlugin(TEXT("Epsilon"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Plugin->GetBaseDir())), (Folder.Path / "Plugins/One").string());
}

TEST_F(IPluginManagerTest, TakesAFolderOnce)
{
	EXPECT_TRUE(Manager.AddPluginSearchPath(Folder.Path.c_str()));
	EXPECT_FALSE(Manager.AddPluginSearchPath((Folder.Path / "").c_str()));
}

TEST_F(IPluginManagerTest, FindsNewPluginsOnlyWhenRefreshed)
{
	Search();
	Folder.Write("Zeta.uplugin", "{}");
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Zeta")).IsValid());
	Manager.RefreshPluginsList();
	EXPECT_TRUE(Manager.FindPlugin(TEXT("Zeta")).IsValid());
}

TEST_F(IPluginManagerTest, SearchesNothingBeforeItIsAskedTo)
{
	Folder.Write("Eta.uplugin", "{}");
	Manager.AddPluginSearchPath(Folder.Path.c_str(), false);
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Eta")).IsValid());
}

TEST_F(IPluginManagerTest, KeepsTheFirstOfTwoPluginsWithOneName)
{
	Folder.Write("Plugins/B/Theta.uplugin", R"({"Version": 2})");
	Folder.Write("Plugins/A/Theta.uplugin", R"({"Version": 1})");
	Search();
	ASSERT_TRUE(Manager.FindPlugin(TEXT("Theta")).IsValid());
	EXPECT_EQ(Manager.FindPlugin(TEXT("Theta"))->GetDescriptor().Version, 1);
}

TEST_F(IPluginManagerTest, ReportsADamagedDescriptorAndGoesOn)
{
	Folder.Write("Plugins/A/Iota.uplugin", "{");
	Folder.Write("Plugins/B/Kappa.uplugin", "{}");
	::testing::internal::CaptureStderr();
	Search();
	const std::string Report = ::testing::internal::GetCapturedStderr();
	EXPECT_EQ(Report,
		"Plugin left out: " + (Folder.Path / "Plugins/A/Iota.uplugin").string() + ": line 1, column 2: is not JSON\n");
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Iota")).IsValid());
	EXPECT_TRUE(Manager.FindPlugin(TEXT("Kappa")).IsValid());
}

TEST_F(IPluginManagerTest, LoadsTheModulesOfOnePhaseOnly)
{
	Register({"Lambda1", "Lambda2", "Lambda3"});
	Folder.Write(
		"Lambda.uplugin", R"({"Modules": [{"Name": "Lambda1"}, {"Name": "Lambda2", "LoadingPhase": "PreDefault"},
		{"Name": "Lambda3", "LoadingPhase": "None"}]})");
	Search();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::PreDefault));
	EXPECT_EQ(Started(), (std::vector<std::string>{"Lambda2"}));
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(Started(), (std::vector<std::string>{"Lambda2", "Lambda1"}));
}

TEST_F(IPluginManagerTest, LoadsRuntimeModulesBeforeEditorModules)
{
	Register({"Mu1", "Mu2", "Mu3"});
	Folder.Write("Mu.uplugin", R"({"Modules": [{"Name": "Mu1", "Type": "Editor"}, {"Name": "Mu2", "Type": "Runtime"},
		{"Name": "Mu3", "Type": "Runtime"}]})");
	Search();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(Started(), (std::vector<std::string>{"Mu2", "Mu3", "Mu1"}));
}

TEST_F(IPluginManagerTest, LeavesOutModulesThatNoEditorUses)
{
	Register({"Nu1", "Nu2", "Nu3"});
	Folder.Write(
		"Nu.uplugin", R"({"Modules": [{"Name": "Nu1", "Type": "Program"}, {"Name": "Nu2", "Type": "CookedOnly"},
		{"Name": "Nu3", "Type": "ServerOnly"}]})");
	Search();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(Started(), std::vector<std::string>());
}

TEST_F(IPluginManagerTest, LoadsModulesOfOtherPlatformsToo)
{
	Register({"Xi1"});
	Folder.Write("Xi.uplugin", R"({"Modules": [{"Name": "Xi1", "Type": "Runtime", "WhitelistPlatforms": ["Win64"]}]})");
	Search();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(Started(), (std::vector<std::string>{"Xi1"}));
}

TEST_F(IPluginManagerTest, ReportsAModuleThatIsMissingAndLoadsTheOthers)
{
	Register({"Omicron2"});
	Folder.Write("Omicron.uplugin", R"({"Modules": [{"Name": "Omicron1"}, {"Name": "Omicron2"}]})");
	Search();
	::testing::internal::CaptureStderr();
	EXPECT_FALSE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(::testing::internal::GetCapturedStderr(),
		"Plugin 'Omicron': module 'Omicron1' was not loaded: its file was not found\n");
	EXPECT_EQ(Started(), (std::vector<std::string>{"Omicron2"}));
}

TEST_F(IPluginManagerTest, LoadsNoModulesOfASecondPluginWithOneName)
{
	Register({"Pi1", "Pi2"});
	Folder.Write("Plugins/A/Pi.uplugin", R"({"Modules": [{"Name": "Pi1"}]})");
	Folder.Write("Plugins/B/Pi.uplugin", R"({"Modules": [{"Name": "Pi2"}]})");
	Search();
	EXPECT_TRUE(Manager.LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ(Started(), (std::vector<std::string>{"Pi1"}));
}

TEST_F(IPluginManagerTest, ForgetsPluginsAndWhereItLooked)
{
	Folder.Write("Rho.uplugin", "{}");
	Search();
	ASSERT_TRUE(Manager.FindPlugin(TEXT("Rho")).IsValid());
	Manager.ForgetPlugins();
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Rho")).IsValid());
	Manager.RefreshPluginsList();
	EXPECT_FALSE(Manager.FindPlugin(TEXT("Rho")).IsValid());
}
