// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

/** Makes a module's object. */
DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule);

/** Why a module is there, or is not. */
enum class EModuleLoadResult
{
	Success,
	FileNotFound,
	FileIncompatible,
	CouldNotBeOpenedByOS,
	FailedToInitialize
};

/**
 * Loads and unloads modules by name. A module is a shared library lib<Name>.so with a factory InitializeModule (see
 * IMPLEMENT_MODULE), or a factory that the program registered. An unloaded module's library stays in memory, since
 * delegates and texts may still point into it.
 */
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();

	/** True from the module's start-up to the end of its shut-down, both included. */
	bool IsModuleLoaded(const FName InModuleName) const;

	/** True if a factory or a file for the module can be found, loaded or not. The path is left empty for a factory. */
	bool ModuleExists(const TCHAR* ModuleName, FString* OutModuleFilePath = nullptr) const;

	/** The loaded module; loads it first where needed. Null on failure. */
	IModuleInterface* LoadModule(const FName InModuleName);

	/** As LoadModule, and tells why it failed. */
	IModuleInterface* LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason);

	/** As LoadModule, but failure ends the program. */
	IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/** The module if it is loaded, else null. Found already while it starts up. */
	IModuleInterface* GetModule(const FName InModuleName);

	/** Shuts a module down and deletes its object. False if it was not loaded. */
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);

	/** Unloads all modules that allow it, the last started first. */
	void UnloadModulesAtShutdown();

	/** From now on the module is made by this factory, whatever files there are. */
	void RegisterStaticallyLinkedModule(
		const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate);

	/** Modules' files are looked for in this folder too, after those added before. */
	void AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory);

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(InModuleName));
	}

	/** The module if it is loaded, else null. */
	template <typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName InModuleName)
	{
		return static_cast<TModuleInterface*>(Get().GetModule(InModuleName));
	}

private:
	struct FModuleInfo;

	FModuleManager() = default;

	FString FindModuleFile(const FString& ModuleName) const;
	IModuleInterface* MakeModule(const FName InModuleName, EModuleLoadResult& OutResult);
	IModuleInterface* OpenModule(const FString& Name, FModuleInfo& Info, EModuleLoadResult& OutResult) const;
	static void Unload(FModuleInfo& Info);

	/** Never removed from, so that a module may load others while it is being started or shut down. */
	TMap<FName, TSharedPtr<FModuleInfo>> Modules;
	TMap<FName, FInitializeStaticallyLinkedModule> Factories;
	TArray<FString> BinariesDirectories;
	int32 NumStarted = 0;
};

/** For a module that needs no start-up. */
class FDefaultModuleImpl : public IModuleInterface
{};

/**
 * Stands once in each module's sources and defines its factory: the class of its object, and the module's name as in
 * the library's.
 */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	extern "C" __attribute__((visibility("default"))) IModuleInterface* InitializeModule() \
	{ \
		return new ModuleImplClass(); \
	}
