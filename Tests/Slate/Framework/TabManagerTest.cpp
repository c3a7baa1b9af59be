// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
	/** Two registered tab types; the tabs are closed and the types unregistered in the end. */
	class FTabManagerTest : public FSlateFixture
	{
	public:
		FTabManagerTest()
		{
			Tabs().RegisterNomadTabSpawner("One", FOnSpawnTab::CreateRaw(this, &FTabManagerTest::Spawn));
			Tabs().RegisterNomadTabSpawner("Two", FOnSpawnTab::CreateRaw(this, &FTabManagerTest::Spawn));
		}
		virtual ~FTabManagerTest() override
		{
			while (Tabs().GetOpenTabs().Num() > 0)
			{
				const TSharedRef<SDockTab> Tab = Tabs().GetOpenTabs()[0].Tab;
				Tab->RequestCloseTab();
			}
			Tabs().UnregisterNomadTabSpawner("One");
			Tabs().UnregisterNomadTabSpawner("Two");
		}
		static FGlobalTabmanager& Tabs() { return FGlobalTabmanager::Get().Get(); }
		TSharedRef<SDockTab> Spawn(const FSpawnTabArgs& Args)
		{
			Spawned.Add(Args.GetTabId().TabType);
			return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(SVerticalBox)];
		}

		TArray<FName> Spawned;
	};

	typedef FTabManagerTest FTabManagerDeathTest;
}

TEST_F(FTabManagerTest, KnowsItsSpawnersUntilTheyAreUnregistered)
{
	EXPECT_TRUE(Tabs().HasTabSpawner("one"));
	Tabs().UnregisterNomadTabSpawner("One");
	EXPECT_FALSE(Tabs().HasTabSpawner("One"));
	Tabs().UnregisterNomadTabSpawner("One");
	EXPECT_TRUE(Tabs().HasTabSpawner("Two"));
}

TEST_F(FTabManagerTest, ListsItsSpawnersSortedByName)
{
	Tabs().RegisterNomadTabSpawner("aTab", FOnSpawnTab());
	EXPECT_TRUE(Tabs().GetTabSpawnerNames() == (TArray<FName>{"aTab", "One", "Two"}));
	Tabs().UnregisterNomadTabSpawner("aTab");
	EXPECT_TRUE(Tabs().GetTabSpawnerNames() == (TArray<FName>{"One", "Two"}));
}

TEST_F(FTabManagerDeathTest, DiesOfASecondSpawnerOfOneType)
{
	EXPECT_EXIT(Tabs().RegisterNomadTabSpawner("ONE", FOnSpawnTab()), ::testing::ExitedWithCode(3),
		"'ONE' is registered already");
}

TEST_F(FTabManagerTest, SpawnsATabInFront)
{
	const TSharedPtr<SDockTab> Tab = Tabs().TryInvokeTab(FName("One"));
	ASSERT_TRUE(Tab.IsValid());
	EXPECT_TRUE(Tab->IsForeground());
	EXPECT_TRUE(Tab->GetLayoutIdentifier() == FTabId("One"));
	EXPECT_EQ(Tab->GetTabRole(), ETabRole::NomadTab);
	EXPECT_TRUE(Tabs().FindExistingLiveTab(FTabId("One")) == Tab);
}

TEST_F(FTabManagerTest, BringsAnOpenTabForwardInsteadOfSpawningASecondOne)
{
	const TSharedPtr<SDockTab> One = Tabs().TryInvokeTab(FName("One"));
	const TSharedPtr<SDockTab> Two = Tabs().TryInvokeTab(FName("Two"));
	EXPECT_FALSE(One->IsForeground());
	EXPECT_TRUE(Tabs().TryInvokeTab(FName("One")) == One);
	EXPECT_TRUE(One->IsForeground());
	EXPECT_FALSE(Two->IsForeground());
	EXPECT_EQ(Spawned.Num(), 2);
}

TEST_F(FTabManagerTest, LeavesTheFrontTabWhereItIsWhenInvokedAsInactive)
{
	const TSharedPtr<SDockTab> One = Tabs().TryInvokeTab(FName("One"), true);
	EXPECT_TRUE(One->IsForeground());
	const TSharedPtr<SDockTab> Two = Tabs().TryInvokeTab(FName("Two"), true);
	EXPECT_TRUE(One->IsForeground());
	EXPECT_FALSE(Two->IsForeground());
}

TEST_F(FTabManagerTest, ListsOpenTabsInOpeningOrder)
{
	Tabs().TryInvokeTab(FName("Two"));
	Tabs().TryInvokeTab(FName("One"));
	Tabs().TryInvokeTab(FName("Two"));
	ASSERT_EQ(Tabs().GetOpenTabs().Num(), 2);
	EXPECT_TRUE(Tabs().GetOpenTabs()[0].Tab->GetLayoutIdentifier() == FTabId("Two"));
	EXPECT_TRUE(Tabs().GetOpenTabs()[1].Tab->GetLayoutIdentifier() == FTabId("One"));
}

TEST_F(FTabManagerTest, SpawnsNothingForAnUnknownType)
{
	EXPECT_FALSE(Tabs().TryInvokeTab(FName("Unknown")).IsValid());
	EXPECT_EQ(Tabs().GetOpenTabs().Num(), 0);
}

TEST_F(FTabManagerTest, AsksWhetherItMaySpawn)
{
	bool bMay = false;
	Tabs().UnregisterNomadTabSpawner("Two");
	Tabs().RegisterNomadTabSpawner("Two", FOnSpawnTab::CreateRaw(this, &FTabManagerTest::Spawn),
		FCanSpawnTab::CreateLambda([&bMay](const FSpawnTabArgs& /*Args*/) { return bMay; }));
	EXPECT_FALSE(Tabs().TryInvokeTab(FName("Two")).IsValid());
	bMay = true;
	EXPECT_TRUE(Tabs().TryInvokeTab(FName("Two")).IsValid());
}

TEST_F(FTabManagerTest, BringsTheLastOpenedTabForwardWhenTheFrontOneCloses)
{
	const TSharedPtr<SDockTab> One = Tabs().TryInvokeTab(FName("One"));
	const TSharedPtr<SDockTab> Two = Tabs().TryInvokeTab(FName("Two"));
	EXPECT_TRUE(Two->RequestCloseTab());
	EXPECT_TRUE(One->IsForeground());
	EXPECT_FALSE(Two->IsForeground());
	One->RequestCloseTab();
	EXPECT_FALSE(Tabs().GetForegroundTab().IsValid());
}

TEST_F(FTabManagerTest, LeavesTheFrontTabWhereItIsWhenAnotherOneCloses)
{
	const TSharedPtr<SDockTab> One = Tabs().TryInvokeTab(FName("One"));
	const TSharedPtr<SDockTab> Two = Tabs().TryInvokeTab(FName("Two"));
	Tabs().TryInvokeTab(FTabId("Two", 7));
	Tabs().TryInvokeTab(FName("One"));
	Two->RequestCloseTab();
	EXPECT_TRUE(One->IsForeground());
}

TEST_F(FTabManagerTest, SpawnsAnewAfterTheTabWasClosed)
{
	Tabs().TryInvokeTab(FName("One"))->RequestCloseTab();
	EXPECT_FALSE(Tabs().FindExistingLiveTab(FTabId("One")).IsValid());
	EXPECT_TRUE(Tabs().TryInvokeTab(FName("One")).IsValid());
	EXPECT_EQ(Spawned.Num(), 2);
}

TEST_F(FTabManagerTest, KeepsNothingOfAClosedTabAlive)
{
	TWeakPtr<SDockTab> Tab;
	TWeakPtr<SWidget> Content;
	{
		const TSharedPtr<SDockTab> Held = Tabs().TryInvokeTab(FName("One"));
		Tab = Held;
		Content = Held->GetContent();
	}
	EXPECT_TRUE(Content.IsValid());
	Tab.Pin()->RequestCloseTab();
	EXPECT_FALSE(Tab.IsValid());
	EXPECT_FALSE(Content.IsValid());
}

TEST_F(FTabManagerTest, LeavesContentThatSomebodyHoldsForTheNextTab)
{
	const TSharedPtr<SDockTab> First = Tabs().TryInvokeTab(FName("One"));
	const TSharedRef<SWidget> Content = First->GetContent();
	First->RequestCloseTab();
	const TSharedPtr<SDockTab> Second = Tabs().TryInvokeTab(FName("One"));
	Second->SetContent(Content);
	EXPECT_TRUE(Content->GetParentWidget() == Second);
	FWidgetPath Path;
	EXPECT_TRUE(App().GeneratePathToWidgetUnchecked(Content, Path));
}

TEST_F(FTabManagerTest, CommitsTheBoxThatIsTypedIntoWhenTheTabCloses)
{
	int32 Commits = 0;
	const TSharedPtr<SDockTab> Tab = Tabs().TryInvokeTab(FName("One"));
	const TSharedRef<SEditableTextBox> Box =
		SNew(SEditableTextBox)
			.OnTextCommitted_Lambda([&Commits](const FText& /*Text*/, ETextCommit::Type /*CommitType*/) { ++Commits; });
	Tab->SetContent(Box);
	App().SetKeyboardFocus(Box);
	Tab->RequestCloseTab();
	EXPECT_EQ(Commits, 1);
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FTabManagerTest, ArrangesAnOpenTabInItsFixedSizeAndAClosedOneNotAtAll)
{
	const TSharedPtr<SDockTab> Tab = Tabs().TryInvokeTab(FName("One"));
	FWidgetPath Path;
	ASSERT_TRUE(App().GeneratePathToWidgetUnchecked(Tab->GetContent(), Path));
	EXPECT_EQ(Path.Widgets.Last().Geometry.GetLocalSize(), FVector2D(420.0f, 800.0f));
	Tab->RequestCloseTab();
	EXPECT_FALSE(App().GeneratePathToWidgetUnchecked(Tab->GetContent(), Path));
}

TEST_F(FTabManagerTest, KeepsAnOpenTabAndItsLabelWhenTheSpawnerGoes)
{
	Tabs().UnregisterNomadTabSpawner("Two");
	Tabs()
		.RegisterNomadTabSpawner("Two", FOnSpawnTab::CreateRaw(this, &FTabManagerTest::Spawn))
		.SetDisplayName(FText::FromString(TEXT("The Label")))
		.SetTooltipText(FText::FromString(TEXT("The Tooltip")))
		.SetAutoGenerateMenuEntry(false)
		.SetIcon(FSlateIcon("Style", "Icon"));
	const TSharedPtr<SDockTab> Tab = Tabs().TryInvokeTab(FName("Two"));
	Tabs().UnregisterNomadTabSpawner("Two");
	ASSERT_EQ(Tabs().GetOpenTabs().Num(), 1);
	const FTabSpawnerEntry& Spawner = Tabs().GetOpenTabs()[0].Spawner.Get();
	EXPECT_TRUE(Spawner.GetDisplayName().ToString().Equals(TEXT("The Label")));
	EXPECT_TRUE(Spawner.GetTooltipText().ToString().Equals(TEXT("The Tooltip")));
	EXPECT_FALSE(Spawner.ShouldAutoGenerateMenuEntry());
	EXPECT_EQ(Spawner.GetIcon().GetStyleName(), FName("Icon"));
	EXPECT_TRUE(Tabs().TryInvokeTab(FName("Two")) == Tab);
}

TEST_F(FTabManagerTest, CallsATabByItsTypeUnlessItWasGivenAName)
{
	Tabs().UnregisterNomadTabSpawner("Two");
	const FTabSpawnerEntry& Spawner = Tabs().RegisterNomadTabSpawner("Two", FOnSpawnTab());
	EXPECT_TRUE(Spawner.GetDisplayName().ToString().Equals(TEXT("Two")));
	EXPECT_TRUE(Spawner.ShouldAutoGenerateMenuEntry());
	EXPECT_FALSE(Spawner.GetIcon().IsSet());
	EXPECT_FALSE(Tabs().TryInvokeTab(FName("Two")).IsValid());
}
