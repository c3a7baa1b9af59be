// Copyright Corvane. MIT License.
#include "TabFixture.h"

using FTabRequestsTest = FTabFixture;
using FPluginTabRequestsTest = FSessionFixture;

TEST_F(FTabRequestsTest, ListNothingBeforeATabIsOpen)
{
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"], FAnswer::array());
}

TEST_F(FTabRequestsTest, ListWhatATabAndItsSpawnerShow)
{
	AskTab("invoke-tab", "TestPage");
	const FAnswer Expected = {{"id", "TestPage"}, {"label", "Test Page"}, {"labelId", "TestTabs,Page"},
		{"tooltip", "Opens it."}, {"tooltipId", nullptr}, {"icon", {{"style", "testStyle"}, {"brush", "Test.icon"}}},
		{"front", true}, {"autoMenu", false}};
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"].dump(), FAnswer::array({Expected}).dump());
}

TEST_F(FTabRequestsTest, ListATabWithoutLabelTooltipAndIcon)
{
	AskTab("invoke-tab", "TestOther");
	const FAnswer Expected = {{"id", "TestOther"}, {"label", "TestOther"}, {"labelId", nullptr}, {"tooltip", ""},
		{"tooltipId", nullptr}, {"icon", nullptr}, {"front", true}, {"autoMenu", true}};
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"], FAnswer::array({Expected}));
}

TEST_F(FTabRequestsTest, ListTabsInOpeningOrderAndTellTheOneInFront)
{
	AskTab("invoke-tab", "TestOther");
	AskTab("invoke-tab", "TestPage");
	AskTab("invoke-tab", "TestOther");
	const FAnswer Tabs = Ask({{"do", "tabs"}})["tabs"];
	ASSERT_EQ(Tabs.size(), 2U);
	EXPECT_EQ(Tabs[0]["id"], "TestOther");
	EXPECT_EQ(Tabs[0]["front"], true);
	EXPECT_EQ(Tabs[1]["front"], false);
}

TEST_F(FTabRequestsTest, CloseATab)
{
	AskTab("invoke-tab", "TestOther");
	AskTab("invoke-tab", "TestPage");
	AskTab("close-tab", "testpage");
	const FAnswer Tabs = Ask({{"do", "tabs"}})["tabs"];
	ASSERT_EQ(Tabs.size(), 1U);
	EXPECT_EQ(Tabs[0]["id"], "TestOther");
	EXPECT_EQ(Tabs[0]["front"], true);
}

TEST_F(FTabRequestsTest, RefuseToOpenWhatNothingSpawns)
{
	EXPECT_EQ(GetRefusal({{"do", "invoke-tab"}, {"tab", "Nowhere"}}), "nothing opens a tab \"Nowhere\"");
	EXPECT_EQ(GetRefusal({{"do", "invoke-tab"}, {"tab", ""}}), "nothing opens a tab \"\"");
	bCanSpawn = false;
	EXPECT_EQ(GetRefusal({{"do", "invoke-tab"}, {"tab", "TestPage"}}), "nothing opens a tab \"TestPage\"");
}

TEST_F(FTabRequestsTest, RefuseATabThatIsNotOpen)
{
	AskTab("invoke-tab", "TestOther");
	for (const char* Do : {"close-tab", "widgets"})
	{
		EXPECT_EQ(GetRefusal({{"do", Do}, {"tab", "TestPage"}}), "the tab \"TestPage\" is not open");
	}
}

TEST_F(FTabRequestsTest, RefuseANameThatIsTooLongForATab)
{
	const std::string Long(1024, 'x');
	EXPECT_NE(GetRefusal({{"do", "invoke-tab"}, {"tab", Long}}).find("so long a name"), std::string::npos);
	EXPECT_NE(GetRefusal({{"do", "close-tab"}, {"tab", Long}}).find("so long a name"), std::string::npos);
	EXPECT_NE(GetRefusal({{"do", "invoke-tab"}, {"tab", Long.substr(1)}}).find("nothing opens"), std::string::npos);
}

TEST_F(FPluginTabRequestsTest, OpenTheWizard)
{
	AskTab("invoke-tab", "CineStreamWizard");
	const FAnswer Expected = {{"id", "CineStreamWizard"}, {"label", "Cine Stream Wizard"},
		{"labelId", "FQuillonEditorModule,CineStreamWizardTitle"}, {"tooltip", "Open the Cine Stream Wizard tab."},
		{"tooltipId", "FQuillonEditorModule,CineStreamWizardTooltipText"},
		{"icon", {{"style", "QuillonEditorStyle"}, {"brush", "ZAVQuillon.WizardIcon_16x"}}}, {"front", true},
		{"autoMenu", false}};
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"], FAnswer::array({Expected}));
}
