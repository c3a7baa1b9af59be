// Copyright Corvane. MIT License.
#include <cstdlib>
#include <dlfcn.h>
#include <memory>
#include <string>
#include <unistd.h>

#include "Modules/ModuleManager.h"

#include "Misc/AssertionMacros.h"
#include "Templates/UniquePtr.h"

/** A module that is or was loaded. */
struct FModuleManager::FModuleInfo
{
	TUniquePtr<IModuleInterface> Module;
	/** When its start-up ended, counted over all modules. A module that another's start-up loads ends before that one.
	 */
	int32 StartOrder = 0;
	/** Its types are registered once, since its library stays in memory. */
	bool bReflectionRegistered = false;
};

namespace
{
	/** The file behind a path, links followed; empty if there is none. */
	std::string ResolvePath(const char* Path)
	{
		const std::unique_ptr<char, void (*)(void*)> Resolved(realpath(Path, nullptr), &std::free);
		return Resolved ? Resolved.get() : std::string();
	}

	/** A symbol of this very file. A plain look-up would also find one of a library that the file is linked with. */
	void* FindOwnSymbol(void* Library, const std::string& Path, const char* Name)
	{
		void* const Symbol = dlsym(Library, Name);
		Dl_info Info;
		if (Symbol == nullptr || dladdr(Symbol, &Info) == 0 || ResolvePath(Info.dli_fname) != ResolvePath(Path.c_str()))
		{
			return nullptr;
		}
		return Symbol;
	}

	/** Names become parts of paths and symbols. */
	bool IsModuleName(const FString& Name)
	{
		for (int32 Index = 0; Index < Name.Len(); ++Index)
		{
			const TCHAR Lower = FChar::ToLower(Name[Index]);
			const bool bLetter = Lower >= TEXT('a') && Lower <= TEXT('z');
			if (!bLetter && Lower != TEXT('_') && (Lower < TEXT('0') || Lower > TEXT('9')))
			{
				return false;
			}
		}
		return !Name.IsEmpty();
	}

	/** Why the last load failed, for a person. */
	FString Describe(EModuleLoadResult Result)
	{
		switch (Result)
		{
			case EModuleLoadResult::FileNotFound:
				return TEXT("no such file in the folders of modules");
			case EModuleLoadResult::FileIncompatible:
				return TEXT("the file has no factory of its own");
			case EModuleLoadResult::CouldNotBeOpenedByOS:
				return FString(TEXT("the file could not be opened: ")) + dlerror();
			default:
				return TEXT("the factory made no module");
		}
	}
}

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: modules that are still loaded at exit must not be deleted behind their users' backs.
	static FModuleManager* const Manager = new FModuleManager;
	return *Manager;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const TSharedPtr<FModuleInfo> Info = Modules.FindRef(InModuleName);
	return Info.IsValid() && Info->Module.IsValid();
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName, FString* OutModuleFilePath) const
{
	const bool bHasFactory = Factories.Contains(FName(ModuleName));
	const FString Path = bHasFactory ? FString() : FindModuleFile(ModuleName);
	if (OutModuleFilePath != nullptr)
	{
		*OutModuleFilePath = Path;
	}
	return bHasFactory || !Path.IsEmpty();
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName)
{
	EModuleLoadResult Result;
	return LoadModuleWithFailureReason(InModuleName, Result);
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(
	const FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* const Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	IModuleInterface* const Module = MakeModule(InModuleName, OutFailureReason);
	if (Module == nullptr)
	{
		return nullptr;
	}
	const TSharedPtr<FModuleInfo> Info = Modules[InModuleName];
	Info->Module.Reset(Module);
	Module->StartupModule();
	Info->StartOrder = ++NumStarted;
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	EModuleLoadResult Result;
	IModuleInterface* const Module = LoadModuleWithFailureReason(InModuleName, Result);
	checkf(Module != nullptr, TEXT("%s: %s"), *InModuleName.ToString(), *Describe(Result));
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const TSharedPtr<FModuleInfo> Info = Modules.FindRef(InModuleName);
	return Info.IsValid() ? Info->Module.Get() : nullptr;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool)
{
	const TSharedPtr<FModuleInfo> Info = Modules.FindRef(InModuleName);
	if (!Info.IsValid() || !Info->Module.IsValid())
	{
		return false;
	}
	Unload(*Info);
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	TArray<TSharedPtr<FModuleInfo>> Started;
	for (const auto& Pair : Modules)
	{
		if (Pair.Value->Module.IsValid() && Pair.Value->Module->SupportsAutomaticShutdown())
		{
			Started.Add(Pair.Value);
		}
	}
	Started.StableSort([](const TSharedPtr<FModuleInfo>& Left, const TSharedPtr<FModuleInfo>& Right)
		{ return Left->StartOrder > Right->StartOrder; });
	for (const TSharedPtr<FModuleInfo>& Info : Started)
	{
		// A module may unload another one while it shuts down.
		if (Info->Module.IsValid())
		{
			Unload(*Info);
		}
	}
}

void FModuleManager::RegisterStaticallyLinkedModule(
	const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate)
{
	Factories.Add(InModuleName, InInitializerDelegate);
}

void FModuleManager::AddBinariesDirectory(const TCHAR* InDirectory, bool)
{
	BinariesDirectories.Add(InDirectory);
}

FString FModuleManager::FindModuleFile(const FString& ModuleName) const
{
	if (IsModuleName(ModuleName))
	{
		for (const FString& Directory : BinariesDirectories)
		{
			const FString Path = Directory / (FString(TEXT("lib")) + ModuleName + TEXT(".so"));
			if (access(TCHAR_TO_UTF8(*Path), F_OK) == 0)
			{
				return Path;
			}
		}
	}
	return FString();
}

IModuleInterface* FModuleManager::MakeModule(const FName InModuleName, EModuleLoadResult& OutResult)
{
	TSharedPtr<FModuleInfo>& Info = Modules.FindOrAdd(InModuleName);
	if (!Info.IsValid())
	{
		Info = MakeShared<FModuleInfo>();
	}
	OutResult = EModuleLoadResult::FailedToInitialize;
	if (const FInitializeStaticallyLinkedModule* const Factory = Factories.Find(InModuleName))
	{
		return Factory->Execute();
	}
	return OpenModule(InModuleName.ToString(), *Info, OutResult);
}

IModuleInterface* FModuleManager::OpenModule(const FString& Name, FModuleInfo& Info, EModuleLoadResult& OutResult) const
{
	const std::string Path = TCHAR_TO_UTF8(*FindModuleFile(Name));
	if (Path.empty())
	{
		OutResult = EModuleLoadResult::FileNotFound;
		return nullptr;
	}
	void* const Library = dlopen(Path.c_str(), RTLD_NOW | RTLD_LOCAL);
	if (Library == nullptr)
	{
		OutResult = EModuleLoadResult::CouldNotBeOpenedByOS;
		return nullptr;
	}
	void* const Factory = FindOwnSymbol(Library, Path, "InitializeModule");
	if (Factory == nullptr)
	{
		OutResult = EModuleLoadResult::FileIncompatible;
		dlclose(Library);
		return nullptr;
	}
	const std::string ReflectionName = std::string("RegisterReflection_") + TCHAR_TO_UTF8(*Name);
	void* const Reflection = FindOwnSymbol(Library, Path, ReflectionName.c_str());
	if (Reflection != nullptr && !Info.bReflectionRegistered)
	{
		Info.bReflectionRegistered = true;
		reinterpret_cast<void (*)()>(Reflection)();
	}
	return reinterpret_cast<IModuleInterface* (*)()>(Factory)();
}

void FModuleManager::Unload(FModuleInfo& Info)
{
	Info.Module->ShutdownModule();
	Info.Module.Reset();
}
