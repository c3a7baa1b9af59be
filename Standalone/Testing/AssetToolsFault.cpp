// Copyright Corvane. MIT License.
#include "AssetToolsFault.h"

#include <optional>

#include "AssetToolsModule.h"
#include "Modules/ModuleManager.h"
#include "OtherAsset.h"
#include "UObject/Class.h"

namespace
{
	using EKind = FAssetToolsFault::EKind;

	/** What the factory makes; the module manager keeps a factory for good, so it must be able to make the real one
	 * too. */
	std::optional<EKind> CurrentKind;

	class FFaultyAssetTools final : public IAssetTools
	{
	public:
		FFaultyAssetTools(const FAssetToolsModule& InReal, EKind InKind) : Real(InReal), Kind(InKind) {}

		void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName,
			FString& OutAssetName) override
		{
			Real.FAssetToolsModule::Get().CreateUniqueAssetName(
				InBasePackageName, InSuffix, OutPackageName, OutAssetName);
		}

		UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass*, UFactory* Factory,
			FName CallingContext) override
		{
			return Kind == EKind::ReturnNull ? nullptr
											 : Real.FAssetToolsModule::Get().CreateAsset(AssetName, PackagePath,
												   UOtherAsset::StaticClass(), Factory, CallingContext);
		}

	private:
		const FAssetToolsModule& Real;
		EKind Kind;
	};

	class FFaultyAssetToolsModule final : public FAssetToolsModule
	{
	public:
		explicit FFaultyAssetToolsModule(EKind Kind) : Tools(*this, Kind) {}

		IAssetTools& Get() const override { return Tools; }

	private:
		mutable FFaultyAssetTools Tools;
	};

	IModuleInterface* MakeModule()
	{
		if (!CurrentKind)
		{
			return new FAssetToolsModule;
		}
		return *CurrentKind == EKind::MissingModule ? nullptr : new FFaultyAssetToolsModule(*CurrentKind);
	}

	void SwitchTo(std::optional<EKind> Kind)
	{
		const FName Module("AssetTools");
		CurrentKind = Kind;
		FModuleManager::Get().UnloadModule(Module);
		FModuleManager::Get().RegisterStaticallyLinkedModule(
			Module, FInitializeStaticallyLinkedModule::CreateStatic(&MakeModule));
		FModuleManager::Get().LoadModule(Module);
	}
}

FAssetToolsFault::FAssetToolsFault(EKind Kind)
{
	SwitchTo(Kind);
}

FAssetToolsFault::~FAssetToolsFault()
{
	SwitchTo(std::nullopt);
}
