// Copyright Corvane. MIT License.
#include "Interfaces/IPluginManager.h"

#include "Modules/ModuleManager.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace
{
	namespace Files = std::filesystem;

	class FPlugin : public IPlugin
	{
	public:
		FPlugin(const FString& InName, const FString& InBaseDir, const FPluginDescriptor& InDescriptor)
			: Name(InName), BaseDir(InBaseDir), Descriptor(InDescriptor)
		{}
		const FString& GetName() const override { return Name; }
		FString GetBaseDir() const override { return BaseDir; }
		const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

	private:
		FString Name;
		FString BaseDir;
		FPluginDescriptor Descriptor;
	};

	class FPluginManager : public IPluginManager
	{
	public:
		TSharedPtr<IPlugin> FindPlugin(const FString& Name) override;
		bool AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bShouldRefresh) override;
		void RefreshPluginsList() override;
		void ForgetPlugins() override;
		bool LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase) override;

	private:
		void AddPlugin(const Files::path& DescriptorFile);

		TArray<FString> SearchPaths;
		TArray<TSharedPtr<IPlugin>> Plugins;
	};

	FString ToText(const Files::path& Path)
	{
		return FString(UTF8_TO_TCHAR(Path.generic_u8string().c_str()));
	}

	/** What is in a folder, by name, so that nothing depends on the disk's order; nothing if it cannot be read. */
	std::vector<Files::path> List(const Files::path& Folder)
	{
		std::error_code Error;
		std::vector<Files::path> Entries;
		for (Files::directory_iterator Entry(Folder, Error), End; !Error && Entry != End; Entry.increment(Error))
		{
			Entries.push_back(Entry->path());
		}
		std::sort(Entries.begin(), Entries.end());
		return Entries;
	}

	std::vector<Files::path> FindDescriptors(const FString& SearchPath)
	{
		const Files::path Root = Files::u8path(TCHAR_TO_UTF8(*SearchPath));
		std::vector<Files::path> Folders = List(Root / "Plugins");
		Folders.insert(Folders.begin(), Root);
		std::vector<Files::path> Descriptors;
		for (const Files::path& Folder : Folders)
		{
			for (const Files::path& File : List(Folder))
			{
				if (File.extension() == ".uplugin")
				{
					Descriptors.push_back(File);
				}
			}
		}
		return Descriptors;
	}

	bool IsUsedByEditor(EHostType::Type Type)
	{
		return Type != EHostType::CookedOnly && Type < EHostType::Program;
	}

	bool IsForEditorOnly(EHostType::Type Type)
	{
		return Type >= EHostType::Editor && Type <= EHostType::EditorAndProgram;
	}

	const char* Explain(EModuleLoadResult Result)
	{
		switch (Result)
		{
			case EModuleLoadResult::FileNotFound:
				return "its file was not found";
			case EModuleLoadResult::FileIncompatible:
				return "its file is no such module";
			case EModuleLoadResult::CouldNotBeOpenedByOS:
				return "its file could not be opened";
			default:
				return "it failed to start";
		}
	}

	/** Loads one of the plugin's modules; reports failure. */
	bool LoadModule(const IPlugin& Plugin, FName Module)
	{
		EModuleLoadResult Result = EModuleLoadResult::Success;
		if (FModuleManager::Get().LoadModuleWithFailureReason(Module, Result))
		{
			return true;
		}
		std::fprintf(stderr, "Plugin '%s': module '%s' was not loaded: %s\n", TCHAR_TO_UTF8(*Plugin.GetName()),
			TCHAR_TO_UTF8(*Module.ToString()), Explain(Result));
		return false;
	}
}

IPluginManager& IPluginManager::Get()
{
	static FPluginManager Manager;
	return Manager;
}

TSharedPtr<IPlugin> FPluginManager::FindPlugin(const FString& Name)
{
	for (const TSharedPtr<IPlugin>& Plugin : Plugins)
	{
		if (Plugin->GetName() == Name)
		{
			return Plugin;
		}
	}
	return nullptr;
}

bool FPluginManager::AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bShouldRefresh)
{
	// Plugins are found again after the process changed its working directory.
	Files::path Path = Files::absolute(Files::u8path(TCHAR_TO_UTF8(*ExtraDiscoveryPath))).lexically_normal();
	Path = Path.has_filename() ? Path : Path.parent_path();
	const bool bIsNew =
		!SearchPaths.ContainsByPredicate([&Path](const FString& Known) { return Known.Equals(ToText(Path)); });
	if (bIsNew)
	{
		SearchPaths.Add(ToText(Path));
	}
	if (bShouldRefresh)
	{
		RefreshPluginsList();
	}
	return bIsNew;
}

void FPluginManager::ForgetPlugins()
{
	SearchPaths.Empty();
	Plugins.Empty();
}

void FPluginManager::RefreshPluginsList()
{
	Plugins.Empty();
	for (const FString& SearchPath : SearchPaths)
	{
		for (const Files::path& Descriptor : FindDescriptors(SearchPath))
		{
			AddPlugin(Descriptor);
		}
	}
}

void FPluginManager::AddPlugin(const Files::path& DescriptorFile)
{
	FPluginDescriptor Descriptor;
	FText FailReason;
	if (!Descriptor.Load(ToText(DescriptorFile), FailReason))
	{
		std::fprintf(stderr, "Plugin left out: %s\n", TCHAR_TO_UTF8(*FailReason.ToString()));
		return;
	}
	const FString Name = ToText(DescriptorFile.stem());
	if (!FindPlugin(Name).IsValid())
	{
		Plugins.Add(MakeShared<FPlugin>(Name, ToText(DescriptorFile.parent_path()), Descriptor));
	}
}

bool FPluginManager::LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase)
{
	// A copy of the list, as a module's start-up may refresh it.
	const TArray<TSharedPtr<IPlugin>> Found = Plugins;
	bool bAllLoaded = true;
	for (const bool bEditorModules : {false, true})
	{
		for (const TSharedPtr<IPlugin>& Plugin : Found)
		{
			for (const FModuleDescriptor& Module : Plugin->GetDescriptor().Modules)
			{
				const bool bIsDue = Module.LoadingPhase == LoadingPhase && IsUsedByEditor(Module.Type) &&
					IsForEditorOnly(Module.Type) == bEditorModules;
				if (bIsDue)
				{
					bAllLoaded &= LoadModule(*Plugin, Module.Name);
				}
			}
		}
	}
	return bAllLoaded;
}
