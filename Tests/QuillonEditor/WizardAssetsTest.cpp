// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "Engine/TextureRenderTarget2D.h"
#include "IAssetTools.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"

// What the wizard asks of the asset tools, and what it does itself with the asset that they return.

namespace
{
	/** Asset tools that do the least: names of their own making, assets that are neither dirty nor registered. */
	class FBareAssetTools : public IAssetTools
	{
	public:
		void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName,
			FString& OutAssetName) override
		{
			BaseNames.push_back(std::string(TCHAR_TO_UTF8(InBasePackageName)) + "|" + TCHAR_TO_UTF8(InSuffix));
			OutPackageName = TEXT("/Elsewhere/Unused");
			OutAssetName = TEXT("Unique");
		}
		UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass,
			UFactory* Factory, FName CallingContext) override
		{
			Assets.push_back(std::string(TCHAR_TO_UTF8(PackagePath)) + "|" + TCHAR_TO_UTF8(AssetName));
			bPlain = AssetClass == UTextureRenderTarget2D::StaticClass() && !Factory && CallingContext.IsNone();
			Asset = NewObject<UTextureRenderTarget2D>(
				CreatePackage(TEXT("/Game/CineStream/Unique")), FName("Unique"), RF_Public);
			return Asset;
		}

		std::vector<std::string> BaseNames;
		std::vector<std::string> Assets;
		bool bPlain = false;
		UObject* Asset = nullptr;
	};

	FBareAssetTools* CurrentTools = nullptr;

	class FBareAssetToolsModule : public FAssetToolsModule
	{
	public:
		IAssetTools& Get() const override { return *CurrentTools; }
	};

	/** The module manager keeps a factory for good: after the test this one makes the real module. */
	IModuleInterface* MakeModule()
	{
		return CurrentTools ? new FBareAssetToolsModule : new FAssetToolsModule;
	}
}

class FWizardAssets : public FWizardFixture
{
protected:
	FWizardAssets() { SwitchTo(&Tools); }
	~FWizardAssets() override { SwitchTo(nullptr); }

	FBareAssetTools Tools;

private:
	static void SwitchTo(FBareAssetTools* NewTools)
	{
		FModuleManager::Get().UnloadModule("AssetTools");
		CurrentTools = NewTools;
		FModuleManager::Get().RegisterStaticallyLinkedModule(
			"AssetTools", FInitializeStaticallyLinkedModule::CreateStatic(&MakeModule));
	}
};

TEST_F(FWizardAssets, AreNamedAfterTheStreamAsItWasTyped)
{
	Create("Cam 1");
	EXPECT_EQ(Tools.BaseNames, std::vector<std::string>{"/Game/CineStream/Cam 1|"});
}

TEST_F(FWizardAssets, AreCreatedUnderTheUniqueAssetNameInTheStreamFolder)
{
	Create("Main");
	EXPECT_EQ(Tools.Assets, std::vector<std::string>{"/Game/CineStream/|Unique"});
	EXPECT_TRUE(Tools.bPlain);
}

TEST_F(FWizardAssets, AreMarkedDirtyByTheWizard)
{
	Create("Main");
	EXPECT_TRUE(Tools.Asset->GetOutermost()->IsDirty());
}

TEST_F(FWizardAssets, AreMadeKnownToTheRegistryByTheWizard)
{
	Create("Main");
	EXPECT_EQ(GetAssetPackages(), std::vector<std::string>{"/Game/CineStream/Unique"});
}
