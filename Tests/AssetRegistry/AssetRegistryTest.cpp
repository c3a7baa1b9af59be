// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "AssetRegistry/AssetRegistryModule.h"
#include "Modules/ModuleManager.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace
{
	/** The modules are built into the folder of this program. */
	void FindModulesBesideTheProgram()
	{
		const std::string Directory = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
		if (!FModuleManager::Get().ModuleExists(TEXT("AssetRegistry")))
		{
			FModuleManager::Get().AddBinariesDirectory(UTF8_TO_TCHAR(Directory.c_str()), false);
		}
	}

	/** The registry for the length of a test. Any object will do as an asset; these are packages within packages. */
	class IAssetRegistryTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FindModulesBesideTheProgram();
			FModuleManager::Get().LoadModuleChecked(FName("AssetRegistry"));
		}
		void TearDown() override
		{
			FModuleManager::Get().UnloadModule(FName("AssetRegistry"));
			for (UObject* Asset : Made)
			{
				Asset->ClearFlags(RF_Standalone);
			}
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
		UObject* Make(const FString& Package, const char* Name, EObjectFlags Flags = RF_Public)
		{
			Made.Add(NewObject<UPackage>(
				CreatePackage(*Package), UPackage::StaticClass(), FName(Name), Flags | RF_Standalone));
			return Made.Last();
		}
		static TArray<FName> Names()
		{
			TArray<FAssetData> Assets;
			IAssetRegistry::GetChecked().GetAllAssets(Assets);
			TArray<FName> Result;
			for (const FAssetData& Asset : Assets)
			{
				Result.Add(Asset.AssetName);
			}
			return Result;
		}

	private:
		TArray<UObject*> Made;
	};
}

TEST_F(IAssetRegistryTest, IsThereWhileItsModuleIsLoaded)
{
	EXPECT_NE(IAssetRegistry::Get(), nullptr);
	FModuleManager::Get().UnloadModule(FName("AssetRegistry"));
	EXPECT_EQ(IAssetRegistry::Get(), nullptr);
}

TEST_F(IAssetRegistryTest, ListsAssetsInTheOrderOfCreation)
{
	FAssetRegistryModule::AssetCreated(Make("/Game/Test/Zebra", "Zebra"));
	IAssetRegistry::Get()->AssetCreated(Make("/Game/Test/Ape", "Ape"));
	EXPECT_EQ(Names(), (TArray<FName>{"Zebra", "Ape"}));
}

TEST_F(IAssetRegistryTest, ListsAnAssetOnce)
{
	int32 Added = 0;
	IAssetRegistry::Get()->OnAssetAdded().AddLambda([&Added](const FAssetData&) { ++Added; });
	UObject* Asset = Make("/Game/Test/Main", "Main");
	IAssetRegistry::Get()->AssetCreated(Asset);
	IAssetRegistry::Get()->AssetCreated(Asset);
	EXPECT_EQ(Names().Num(), 1);
	EXPECT_EQ(Added, 1);
}

TEST_F(IAssetRegistryTest, LeavesOutWhatIsNoAsset)
{
	IAssetRegistry::Get()->AssetCreated(nullptr);
	IAssetRegistry::Get()->AssetCreated(CreatePackage(TEXT("/Game/Test/Package")));
	IAssetRegistry::Get()->AssetCreated(Make("/Game/Test/Private", "Private", RF_NoFlags));
	UObject* Asset = Make("/Game/Test/Outer", "Outer");
	UObject* Part = NewObject<UPackage>(Asset, UPackage::StaticClass(), FName("Part"), RF_Public);
	IAssetRegistry::Get()->AssetCreated(Part);
	EXPECT_EQ(Names().Num(), 0);
}

TEST_F(IAssetRegistryTest, ForgetsADeletedAsset)
{
	UObject* First = Make("/Game/Test/First", "First");
	UObject* Second = Make("/Game/Test/Second", "Second");
	IAssetRegistry::Get()->AssetCreated(First);
	IAssetRegistry::Get()->AssetCreated(Second);
	IAssetRegistry::Get()->AssetDeleted(First);
	IAssetRegistry::Get()->AssetDeleted(First);
	IAssetRegistry::Get()->AssetDeleted(nullptr);
	EXPECT_EQ(Names(), TArray<FName>{"Second"});
}

TEST_F(IAssetRegistryTest, TellsWhetherThereAreAnyAssets)
{
	TArray<FAssetData> Assets;
	EXPECT_FALSE(IAssetRegistry::Get()->GetAllAssets(Assets));
	IAssetRegistry::Get()->AssetCreated(Make("/Game/Test/Main", "Main"));
	EXPECT_TRUE(IAssetRegistry::Get()->GetAllAssets(Assets));
	EXPECT_EQ(Assets.Num(), 1);
}

TEST_F(IAssetRegistryTest, BeginsEmptyAfterARestart)
{
	IAssetRegistry::Get()->AssetCreated(Make("/Game/Test/Main", "Main"));
	FModuleManager::Get().UnloadModule(FName("AssetRegistry"));
	FModuleManager::Get().LoadModuleChecked(FName("AssetRegistry"));
	EXPECT_EQ(Names().Num(), 0);
}

TEST(IAssetRegistryDeathTest, EndsTheProgramOverANewAssetWithoutModule)
{
	ASSERT_EQ(IAssetRegistry::Get(), nullptr);
	EXPECT_EXIT(
		FAssetRegistryModule::AssetCreated(nullptr), ::testing::ExitedWithCode(3), "Assertion failed: TheRegistry");
}

TEST_F(IAssetRegistryTest, NamesAnAsset)
{
	UObject* Asset = Make("/Game/Test/Main_3", "Main_3");
	const FAssetData Data(Asset);
	EXPECT_TRUE(Data.ObjectPath.ToString().Equals(TEXT("/Game/Test/Main_3.Main_3")));
	EXPECT_TRUE(Data.PackageName.ToString().Equals(TEXT("/Game/Test/Main_3")));
	EXPECT_TRUE(Data.AssetName.ToString().Equals(TEXT("Main_3")));
	EXPECT_TRUE(Data.AssetClass.ToString().Equals(TEXT("Package")));
	EXPECT_EQ(Data.GetAsset(), Asset);
}

TEST(FAssetData, NamesNothingByDefaultAndForNull)
{
	EXPECT_FALSE(FAssetData().IsValid());
	EXPECT_FALSE(FAssetData(nullptr).IsValid());
	EXPECT_EQ(FAssetData().GetAsset(), nullptr);
}

TEST(FAssetData, NamesAClass)
{
	const FAssetData Data(UPackage::StaticClass());
	EXPECT_TRUE(Data.AssetName.ToString().Equals(TEXT("Package")));
	EXPECT_TRUE(Data.AssetClass.ToString().Equals(TEXT("Class")));
	EXPECT_EQ(Data.GetAsset(), UPackage::StaticClass());
}

TEST(FAssetData, HasNoAssetOnceItIsDestroyed)
{
	UObject* Asset =
		NewObject<UPackage>(CreatePackage(TEXT("/Game/Test/Gone")), UPackage::StaticClass(), FName("Gone"));
	const FAssetData Data(Asset);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Data.GetAsset(), nullptr);
}

TEST_F(IAssetRegistryTest, NamesAnAssetWhosePathIsTooLongForAName)
{
	const std::string Long(1000, 'x');
	UObject* Asset = Make(FString(("/Game/" + Long).c_str()), Long.c_str());
	const FAssetData Data(Asset);
	EXPECT_TRUE(Data.ObjectPath.IsNone());
	EXPECT_TRUE(Data.IsValid());
	EXPECT_EQ(Data.GetAsset(), Asset);
}
