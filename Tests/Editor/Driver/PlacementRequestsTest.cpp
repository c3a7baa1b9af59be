// Copyright Corvane. MIT License.
#include "TabFixture.h"

#include "Engine/TextureRenderTarget2D.h"
#include "GameFramework/Actor.h"
#include "IPlacementModeModule.h"
#include "TestEditor.h"
#include "UObject/Class.h"

namespace
{
	/** With the plugin's category. */
	using FPluginPlacementRequestsTest = FSessionFixture;

	/** Without the plugin, with a category of the tests. */
	class FPlacementRequestsTest : public FSessionFixture
	{
	protected:
		FPlacementRequestsTest() : FSessionFixture(FTestEditor::EngineOnly())
		{
			IPlacementModeModule::Get().RegisterPlacementCategory(FPlacementCategoryInfo(
				NSLOCTEXT("TestPlacement", "Name", "Test Things"), "TestHandle", TEXT("TestTag"), -7, true));
		}

		void Register(const UClass* Class)
		{
			IPlacementModeModule::Get().RegisterPlaceableItem(
				"TestHandle", MakeShared<FPlaceableItem>(static_cast<UActorFactory*>(nullptr), FAssetData(Class)));
		}
		FAnswer GetCategory(const std::string& Handle)
		{
			const FAnswer Categories = Ask({{"do", "placement"}})["categories"];
			for (const FAnswer& Category : Categories)
			{
				if (Category["handle"] == Handle)
				{
					return Category;
				}
			}
			return nullptr;
		}
	};
}

TEST_F(FPlacementRequestsTest, DescribeACategoryWithoutItems)
{
	const FAnswer Expected = {{"handle", "TestHandle"}, {"name", "Test Things"}, {"nameId", "TestPlacement,Name"},
		{"tag", "TestTag"}, {"order", -7}, {"sortable", true}, {"items", FAnswer::array()},
		{"shown", FAnswer::array()}};
	EXPECT_EQ(GetCategory("TestHandle").dump(), Expected.dump());
}

TEST_F(FPlacementRequestsTest, ListItemsAsRegisteredAndAsShown)
{
	Register(UTextureRenderTarget2D::StaticClass());
	Register(AActor::StaticClass());
	Register(UTextureRenderTarget2D::StaticClass());
	const FAnswer Category = GetCategory("TestHandle");
	EXPECT_EQ(Category["items"], (FAnswer{"TextureRenderTarget2D", "Actor", "TextureRenderTarget2D"}));
	EXPECT_EQ(Category["shown"], (FAnswer{"Actor", "TextureRenderTarget2D", "TextureRenderTarget2D"}));
}

TEST_F(FPlacementRequestsTest, ListCategoriesByTheirOrder)
{
	const FAnswer Categories = Ask({{"do", "placement"}})["categories"];
	ASSERT_GT(Categories.size(), 1U);
	EXPECT_EQ(Categories[0]["handle"], "TestHandle");
}

TEST_F(FPluginPlacementRequestsTest, ListThePluginsActors)
{
	FAnswer Found;
	const FAnswer Categories = Ask({{"do", "placement"}})["categories"];
	for (const FAnswer& Category : Categories)
	{
		Found = Category["handle"] == "Corvane" ? Category : Found;
	}
	EXPECT_EQ(Found["name"], "Corvane");
	EXPECT_EQ(Found["tag"], "PMCorvane");
	EXPECT_EQ(Found["order"], 25);
	EXPECT_EQ(Found["items"], (FAnswer{"ZAVCineCamCapture", "ZAVSpoutSenderManager", "ZAVSpoutReceiverManager"}));
	EXPECT_EQ(Found["shown"].size(), 3U);
}

TEST_F(FPluginPlacementRequestsTest, ListNothingOfAPanelThatIsNotLoadedAndDoNotLoadIt)
{
	Ask({{"do", "module"}, {"name", "PlacementMode"}, {"action", "unload"}});
	EXPECT_EQ(Ask({{"do", "placement"}})["categories"], FAnswer::array());
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("PlacementMode"));
}
