// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "GameFramework/Actor.h"
#include "IPlacementModeModule.h"
#include "Standalone/PlacementPanel.h"
#include "TestActors.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

extern "C" void RegisterReflection_Engine();

namespace
{
	typedef std::vector<std::string> FNames;

	/** The module, fresh for the length of a test. */
	class FLoadedModule
	{
	public:
		FLoadedModule()
		{
			RegisterReflection_Engine();
			if (!FModuleManager::Get().ModuleExists(TEXT("PlacementMode")))
			{
				const std::string Directory = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
				FModuleManager::Get().AddBinariesDirectory(UTF8_TO_TCHAR(Directory.c_str()), false);
			}
			FModuleManager::Get().LoadModuleChecked("PlacementMode");
		}
		~FLoadedModule() { FModuleManager::Get().UnloadModule("PlacementMode"); }
		IPlacementModeModule* operator->() const { return &IPlacementModeModule::Get(); }
	};

	FPlacementCategoryInfo Category(const char* Handle, int32 SortOrder = 0, bool bSortable = true)
	{
		return FPlacementCategoryInfo(FText::FromString(FString(Handle)), Handle, TEXT("Tag"), SortOrder, bSortable);
	}

	TSharedRef<FPlaceableItem> Item(const std::string& Name, TOptional<int32> SortOrder = TOptional<int32>())
	{
		const TSharedRef<FPlaceableItem> Made =
			MakeShared<FPlaceableItem>(static_cast<UActorFactory*>(nullptr), FAssetData(), SortOrder);
		Made->DisplayName = FText::FromString(FString(Name.c_str()));
		return Made;
	}

	FNames GetNames(const TArray<TSharedPtr<FPlaceableItem>>& Items)
	{
		FNames Names;
		for (const TSharedPtr<FPlaceableItem>& Each : Items)
		{
			Names.push_back(TCHAR_TO_UTF8(Each->DisplayName.ToString()));
		}
		return Names;
	}

	FNames Registered(const FLoadedModule& Module, const FName Handle)
	{
		TArray<TSharedPtr<FPlaceableItem>> Items;
		Module->GetItemsForCategory(Handle, Items);
		return GetNames(Items);
	}

	FNames Handles(const FLoadedModule& Module)
	{
		TArray<FPlacementCategoryInfo> Categories;
		Module->GetSortedCategories(Categories);
		FNames Result;
		for (const FPlacementCategoryInfo& Info : Categories)
		{
			Result.push_back(TCHAR_TO_UTF8(Info.UniqueHandle.ToString()));
		}
		return Result;
	}
}

TEST(FPlacementModeModule, KeepsTheSettingsOfACategory)
{
	const FLoadedModule Module;
	EXPECT_EQ(Module->GetRegisteredPlacementCategory("Corvane"), nullptr);
	FPlacementCategoryInfo Info(FText::FromString(TEXT("Shown")), "Corvane", TEXT("PMCorvane"), 25, true);
	EXPECT_FALSE(static_cast<bool>(Info.CustomGenerator));
	EXPECT_TRUE(Module->RegisterPlacementCategory(Info));
	const FPlacementCategoryInfo* Found = Module->GetRegisteredPlacementCategory("CORVANE");
	ASSERT_NE(Found, nullptr);
	EXPECT_STREQ(TCHAR_TO_UTF8(Found->DisplayName.ToString()), "Shown");
	EXPECT_STREQ(TCHAR_TO_UTF8(Found->UniqueHandle.ToString()), "Corvane");
	EXPECT_STREQ(TCHAR_TO_UTF8(Found->TagMetaData), "PMCorvane");
	EXPECT_EQ(Found->SortOrder, 25);
	EXPECT_TRUE(Found->bSortable);
}

TEST(FPlacementModeModule, LeavesACategoryThatExistsAsItIs)
{
	const FLoadedModule Module;
	EXPECT_TRUE(Module->RegisterPlacementCategory(Category("Corvane", 25)));
	EXPECT_TRUE(Module->RegisterPlaceableItem("Corvane", Item("Kept")).IsSet());
	EXPECT_FALSE(Module->RegisterPlacementCategory(Category("corvane", 1, false)));
	EXPECT_EQ(Module->GetRegisteredPlacementCategory("Corvane")->SortOrder, 25);
	EXPECT_EQ(Registered(Module, "Corvane"), FNames{"Kept"});
	EXPECT_EQ(Handles(Module), (FNames{"Basic", "Corvane", "AllClasses"}));
}

TEST(FPlacementModeModule, DropsACategoryWithItsItems)
{
	const FLoadedModule Module;
	Module->RegisterPlacementCategory(Category("Corvane", 25));
	Module->RegisterPlaceableItem("Corvane", Item("Gone"));
	Module->UnregisterPlacementCategory("Unknown");
	EXPECT_EQ(Handles(Module), (FNames{"Basic", "Corvane", "AllClasses"}));
	Module->UnregisterPlacementCategory("Corvane");
	EXPECT_EQ(Handles(Module), (FNames{"Basic", "AllClasses"}));
	EXPECT_EQ(Module->GetRegisteredPlacementCategory("Corvane"), nullptr);
	Module->RegisterPlacementCategory(Category("Corvane", 25));
	EXPECT_EQ(Registered(Module, "Corvane"), FNames{});
}

TEST(FPlacementModeModule, RefusesAnItemOfAnUnknownCategory)
{
	const FLoadedModule Module;
	EXPECT_FALSE(Module->RegisterPlaceableItem("Corvane", Item("A")).IsSet());
	EXPECT_EQ(Registered(Module, "Corvane"), FNames{});
	EXPECT_EQ(FPlacementPanel::GetShownItems("Corvane").Num(), 0);
}

TEST(FPlacementModeModule, ListsAnItemAsOftenAsItWasRegistered)
{
	const FLoadedModule Module;
	Module->RegisterPlacementCategory(Category("Corvane"));
	const TSharedRef<FPlaceableItem> Twice = Item("B");
	for (const TSharedRef<FPlaceableItem>& Each : {Twice, Item("C"), Item("A"), Twice})
	{
		EXPECT_TRUE(Module->RegisterPlaceableItem("Corvane", Each).IsSet());
	}
	EXPECT_EQ(Registered(Module, "Corvane"), (FNames{"B", "C", "A", "B"}));
	EXPECT_EQ(GetNames(FPlacementPanel::GetShownItems("Corvane")), (FNames{"A", "B", "B", "C"}));
}

TEST(FPlacementModeModule, ShowsAnUnsortableCategoryAsItWasRegistered)
{
	const FLoadedModule Module;
	Module->RegisterPlacementCategory(Category("Corvane", 0, false));
	Module->RegisterPlaceableItem("Corvane", Item("C"));
	Module->RegisterPlaceableItem("Corvane", Item("A", 1));
	EXPECT_EQ(GetNames(FPlacementPanel::GetShownItems("Corvane")), (FNames{"C", "A"}));
}

TEST(FPlacementModeModule, ShowsItemsWithAnOrderOfTheirOwnFirst)
{
	const FLoadedModule Module;
	Module->RegisterPlacementCategory(Category("Corvane"));
	for (const TSharedRef<FPlaceableItem>& Each :
		{Item("b"), Item("Z", 5), Item("A"), Item("Y", -1), Item("X", 5), Item("\u00E4")})
	{
		Module->RegisterPlaceableItem("Corvane", Each);
	}
	EXPECT_EQ(GetNames(FPlacementPanel::GetShownItems("Corvane")), (FNames{"Y", "Z", "X", "A", "\u00E4", "b"}));
}

TEST(FPlacementModeModule, BeginsWithTheEnginesOwnActors)
{
	const FLoadedModule Module;
	EXPECT_EQ(Handles(Module), (FNames{"Basic", "AllClasses"}));
	EXPECT_EQ(Module->GetRegisteredPlacementCategory("Basic")->SortOrder, 10);
	EXPECT_EQ(Registered(Module, FBuiltInPlacementCategories::Basic()), FNames{"Actor"});
}

TEST(FPlacementModeModule, FindsAllClassesAtEachReadingExceptAbstractOnes)
{
	const FLoadedModule Module;
	ALateActor::StaticClass();
	AAbstractActor::StaticClass();
	EXPECT_EQ(Registered(Module, FBuiltInPlacementCategories::AllClasses()), (FNames{"Actor", "Late Actor"}));
	EXPECT_EQ(Registered(Module, FBuiltInPlacementCategories::Basic()), FNames{"Actor"});
	Module->RegisterPlaceableItem(FBuiltInPlacementCategories::AllClasses(), Item("Own"));
	EXPECT_EQ(Registered(Module, FBuiltInPlacementCategories::AllClasses()), (FNames{"Own", "Actor", "Late Actor"}));
}

TEST(FPlacementModeModule, BeginsAnewAfterItWasUnloaded)
{
	{
		const FLoadedModule Module;
		Module->RegisterPlacementCategory(Category("Corvane"));
	}
	const FLoadedModule Module;
	EXPECT_EQ(Handles(Module), (FNames{"Basic", "AllClasses"}));
}

TEST(FPlaceableItem, IsNamedAfterItsClass)
{
	const FPlaceableItem Made(nullptr, FAssetData(AActor::StaticClass()), 3);
	EXPECT_STREQ(TCHAR_TO_UTF8(Made.DisplayName.ToString()), "Actor");
	EXPECT_EQ(Made.AssetData.GetAsset(), AActor::StaticClass());
	EXPECT_EQ(Made.SortOrder.GetValue(), 3);
	EXPECT_EQ(Made.Factory, nullptr);
	EXPECT_STREQ(
		TCHAR_TO_UTF8(FPlaceableItem(nullptr, FAssetData(USceneComponent::StaticClass())).DisplayName.ToString()),
		"Scene Component");
}

TEST(FPlaceableItem, IsNamedAsItsClassAsksFor)
{
	UClass* Class = USceneComponent::StaticClass();
	Class->SetMetaData("DisplayName", TEXT("A Place"));
	const FPlaceableItem Made(nullptr, FAssetData(Class));
	Class->SetMetaData("DisplayName", TEXT(""));
	EXPECT_STREQ(TCHAR_TO_UTF8(Made.DisplayName.ToString()), "A Place");
}

TEST(FPlaceableItem, IsNamedAsItsAsset)
{
	UPackage* Asset = NewObject<UPackage>(CreatePackage(TEXT("/Game/MyThing")), FName("MyThing"));
	EXPECT_STREQ(TCHAR_TO_UTF8(FPlaceableItem(nullptr, FAssetData(Asset)).DisplayName.ToString()), "MyThing");
	EXPECT_STREQ(TCHAR_TO_UTF8(FPlaceableItem(nullptr, FAssetData()).DisplayName.ToString()), "None");
}

RC_GTEST_PROP(FPlacementModeModuleProperty, OrdersCategoriesAsAStableSortDoes, (const std::vector<signed char>& Orders))
{
	const FLoadedModule Module;
	std::vector<std::pair<int, std::string>> Model = {{10, "Basic"}, {50, "AllClasses"}};
	for (size_t Index = 0; Index < Orders.size(); ++Index)
	{
		Model.emplace_back(Orders[Index] / 4, "Category" + std::to_string(Index));
		RC_ASSERT(Module->RegisterPlacementCategory(Category(Model.back().second.c_str(), Model.back().first)));
	}
	std::stable_sort(
		Model.begin(), Model.end(), [](const auto& Left, const auto& Right) { return Left.first < Right.first; });
	FNames Expected;
	for (const auto& [Order, Handle] : Model)
	{
		Expected.push_back(Handle);
	}
	RC_ASSERT(Handles(Module) == Expected);
}

RC_GTEST_PROP(FPlacementModeModuleProperty, ShowsItemsAsAStableSortDoes, (bool bSortable))
{
	struct FModelItem
	{
		std::optional<int> Order;
		std::string Name;
		TSharedPtr<FPlaceableItem> Item;
	};
	const FLoadedModule Module;
	Module->RegisterPlacementCategory(Category("Corvane", 0, bSortable));
	std::vector<FModelItem> Model;
	for (int Left = *rc::gen::inRange(0, 12); Left > 0; --Left)
	{
		FModelItem Each;
		Each.Order = *rc::gen::element<std::optional<int>>(std::nullopt, -1, 0, 1);
		// Lower case only: there, collation and the order of bytes agree.
		Each.Name = *rc::gen::container<std::string>(rc::gen::element('a', 'b', 'c'));
		Each.Item = Item(Each.Name, Each.Order ? TOptional<int32>(*Each.Order) : TOptional<int32>());
		RC_ASSERT(Module->RegisterPlaceableItem("Corvane", Each.Item.ToSharedRef()).IsSet());
		Model.push_back(Each);
	}
	if (bSortable)
	{
		std::stable_sort(Model.begin(), Model.end(),
			[](const FModelItem& Left, const FModelItem& Right)
			{
				const auto Key = [](const FModelItem& Each)
				{ return std::make_tuple(!Each.Order, Each.Order.value_or(0), Each.Order ? "" : Each.Name); };
				return Key(Left) < Key(Right);
			});
	}
	const TArray<TSharedPtr<FPlaceableItem>> Shown = FPlacementPanel::GetShownItems("Corvane");
	RC_ASSERT(Shown.Num() == static_cast<int32>(Model.size()));
	for (int32 Index = 0; Index < Shown.Num(); ++Index)
	{
		RC_ASSERT(Shown[Index] == Model[static_cast<size_t>(Index)].Item);
	}
}
