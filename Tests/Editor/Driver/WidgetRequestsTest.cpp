// Copyright Corvane. MIT License.
#include "TabFixture.h"

#include "Framework/Application/SlateApplication.h"
#include "Styling/SlateColor.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** With the page open. */
	class FWidgetRequestsTest : public FTabFixture
	{
	protected:
		FWidgetRequestsTest() { AskTab("invoke-tab", "TestPage"); }

		FAnswer AskGeometry(nlohmann::json Request)
		{
			Request["do"] = "geometry";
			Request["tab"] = "TestPage";
			return Ask(Request);
		}
		std::string GetGeometryRefusal(nlohmann::json Request)
		{
			Request["do"] = "geometry";
			Request["tab"] = "TestPage";
			return GetRefusal(Request);
		}
	};

	/** The wizard's tab. */
	class FWizardRequestsTest : public FSessionFixture
	{
	protected:
		FWizardRequestsTest() { AskTab("invoke-tab", "CineStreamWizard"); }

		/** The first node that displays the text, or null. */
		static FAnswer Find(const FAnswer& Node, const std::string& Text)
		{
			if (Node["text"] == Text)
			{
				return Node;
			}
			for (const FAnswer& Child : Node["children"])
			{
				const FAnswer Found = Find(Child, Text);
				if (!Found.is_null())
				{
					return Found;
				}
			}
			return nullptr;
		}
	};
}

TEST_F(FWidgetRequestsTest, DescribeATextWithAllMembersInOrder)
{
	const FAnswer Expected = {{"type", "STextBlock"}, {"text", "The Title"}, {"textId", "TestTabs,Title"},
		{"font", {{"typeface", "Italic"}, {"size", 8}}}, {"colour", {1, 0.5, 0.1, 0.25}}, {"image", nullptr},
		{"visibility", "Visible"}, {"shown", true}, {"enabled", true}, {"focused", false},
		{"slot",
			{{"auto", true}, {"fill", nullptr}, {"halign", "Right"}, {"valign", "Bottom"},
				{"padding", {1, 2.5, 3, 4.1}}}},
		{"children", FAnswer::array()}};
	EXPECT_EQ(GetNode({0, 0}).dump(), Expected.dump());
}

TEST_F(FWidgetRequestsTest, DescribeWhatAFormattedTextIsMadeOf)
{
	const FAnswer Node = GetNode({0, 1});
	EXPECT_EQ(Node["text"], "One of {0}");
	EXPECT_EQ(Node["textId"], nullptr);
	const FAnswer Expected = {
		{"pattern", "{0} of {1}"}, {"patternId", "TestTabs,Pattern"}, {"arguments", {"One", "{0}"}}};
	EXPECT_EQ(Node["format"], Expected);
	EXPECT_FALSE(GetNode({0, 0}).contains("format"));
}

TEST_F(FWidgetRequestsTest, LeaveTheColourOfTheSurroundingsOpen)
{
	Title->SetColorAndOpacity(FSlateColor::UseForeground());
	EXPECT_EQ(GetNode({0, 0})["colour"], nullptr);
}

TEST_F(FWidgetRequestsTest, DescribeAnEditBox)
{
	const FAnswer Box = GetNode({1, 0});
	EXPECT_EQ(Box["type"], "SEditableTextBox");
	EXPECT_EQ(Box["text"], "old");
	EXPECT_EQ(Box["textId"], nullptr);
	EXPECT_EQ(Box["font"], (FAnswer{{"typeface", "Regular"}, {"size", 9}}));
	EXPECT_EQ(Box["colour"], nullptr);
}

TEST_F(FWidgetRequestsTest, DescribeNoTextWhereNoneIsDisplayed)
{
	const FAnswer Root = GetNode({});
	EXPECT_EQ(Root["type"], "SVerticalBox");
	EXPECT_EQ(Root["text"], nullptr);
	EXPECT_EQ(Root["textId"], nullptr);
	EXPECT_EQ(Root["font"], nullptr);
	EXPECT_EQ(Root["image"], nullptr);
}

TEST_F(FWidgetRequestsTest, DescribeTheSlotsOfEachKindOfParent)
{
	EXPECT_EQ(GetNode({})["slot"], nullptr);
	EXPECT_EQ(GetNode({1})["slot"]["auto"], false);
	EXPECT_EQ(GetNode({1})["slot"]["fill"], 2.5);
	EXPECT_EQ(GetNode({1, 0})["slot"]["fill"], 1.0);
	const FAnswer Overlaid = {
		{"auto", false}, {"fill", nullptr}, {"halign", "Center"}, {"valign", "Top"}, {"padding", {0.0, 0.0, 0.0, 0.0}}};
	EXPECT_EQ(GetNode({2, 0})["slot"], Overlaid);
	EXPECT_EQ(GetNode({2, 1})["slot"]["halign"], "Left");
	EXPECT_EQ(GetNode({2, 1})["slot"]["valign"], "Center");
	const FAnswer InButton = {
		{"auto", false}, {"fill", nullptr}, {"halign", "Fill"}, {"valign", "Fill"}, {"padding", {4.0, 2.0, 4.0, 2.0}}};
	EXPECT_EQ(GetNode({3, 0, 0})["slot"], InButton);
}

TEST_F(FWidgetRequestsTest, NameABrushAsItWasSetAndNoneThatIsInNoStyle)
{
	EXPECT_EQ(GetNode({2, 0})["image"], (FAnswer{{"style", "TestStyle"}, {"brush", "Test.Icon"}}));
	EXPECT_EQ(GetNode({2, 1})["image"], nullptr);
	EXPECT_EQ(GetNode({2, 2})["image"], nullptr);
}

TEST_F(FWidgetRequestsTest, ListWhatIsNotShown)
{
	const FAnswer Hidden = GetNode({0, 2});
	EXPECT_EQ(Hidden["visibility"], "Hidden");
	EXPECT_EQ(Hidden["shown"], false);
	EXPECT_EQ(GetNode({1, 1})["visibility"], "Collapsed");
	const FAnswer InCollapsed = GetNode({1, 1, 0});
	EXPECT_EQ(InCollapsed["text"], "collapsed");
	EXPECT_EQ(InCollapsed["visibility"], "Visible");
	EXPECT_EQ(InCollapsed["shown"], false);
}

TEST_F(FWidgetRequestsTest, CountWhatThePointerPassesThroughAsVisible)
{
	for (const EVisibility Visibility : {EVisibility::HitTestInvisible, EVisibility::SelfHitTestInvisible})
	{
		Title->SetVisibility(Visibility);
		EXPECT_EQ(GetNode({0, 0})["visibility"], "Visible");
		EXPECT_EQ(GetNode({0, 0})["shown"], true);
	}
}

TEST_F(FWidgetRequestsTest, TellWhatCannotBeUsedWithWhatStandsInIt)
{
	EXPECT_EQ(GetNode({3, 1})["enabled"], false);
	EXPECT_EQ(GetNode({3, 1, 0})["enabled"], false);
	EXPECT_EQ(GetNode({3, 0, 0})["enabled"], true);
}

TEST_F(FWidgetRequestsTest, TellTheFocus)
{
	FSlateApplication::Get().SetKeyboardFocus(Second);
	EXPECT_EQ(GetNode({1, 0})["focused"], false);
	EXPECT_EQ(GetNode({1, 2})["focused"], true);
}

TEST_F(FWidgetRequestsTest, MeasureAWidgetWithinTheTab)
{
	const FAnswer Root = AskGeometry({{"type", "SVerticalBox"}});
	EXPECT_EQ(Root.dump(), "{\"do\":\"geometry\",\"ok\":true,\"x\":0,\"y\":0,\"width\":420,\"height\":800}");
	const FAnswer Text = AskGeometry({{"text", "The Title"}});
	EXPECT_EQ(Text["y"], 2.5);
	EXPECT_EQ(Text["x"].get<float>() + Text["width"].get<float>(), 420.0f - 3.0f);
}

TEST_F(FWidgetRequestsTest, MeasureTheWidgetOfAnIndexAmongTheShownOnes)
{
	const FAnswer Boxes[] = {
		AskGeometry({{"type", "SEditableTextBox"}}), AskGeometry({{"type", "SEditableTextBox"}, {"index", 1}})};
	EXPECT_EQ(Boxes[1]["y"].get<float>(), Boxes[0]["y"].get<float>() + Boxes[0]["height"].get<float>());
	EXPECT_EQ(AskGeometry({{"text", "old"}}).dump(), Boxes[0].dump());
	EXPECT_LT(AskGeometry({{"text", "Twin"}, {"index", 0}})["y"].get<float>(),
		AskGeometry({{"text", "Twin"}, {"index", 1}})["y"].get<float>());
}

TEST_F(FWidgetRequestsTest, MeasureOnlyWhatIsShown)
{
	EXPECT_EQ(GetGeometryRefusal({{"type", "SEditableTextBox"}, {"index", 2}}),
		"index 2: the tab shows 2 of type \"SEditableTextBox\"");
	EXPECT_EQ(GetGeometryRefusal({{"text", "Hidden"}}), "index 0: the tab shows 0 of text \"Hidden\"");
	EXPECT_EQ(GetGeometryRefusal({{"text", "collapsed"}}), "index 0: the tab shows 0 of text \"collapsed\"");
	EXPECT_EQ(GetGeometryRefusal({{"text", "the title"}}), "index 0: the tab shows 0 of text \"the title\"");
}

TEST_F(FWidgetRequestsTest, MeasureByEitherTypeOrText)
{
	EXPECT_EQ(GetGeometryRefusal(nlohmann::json::object()), "either \"type\" or \"text\" is wanted");
	EXPECT_EQ(GetGeometryRefusal({{"type", "STextBlock"}, {"text", "old"}}), "either \"type\" or \"text\" is wanted");
}

TEST_F(FWidgetRequestsTest, MeasureInATabBehind)
{
	const FAnswer Before = AskGeometry({{"text", "old"}});
	AskTab("invoke-tab", "TestOther");
	EXPECT_EQ(AskGeometry({{"text", "old"}}), Before);
	EXPECT_EQ(GetRefusal({{"do", "geometry"}, {"tab", "Nowhere"}, {"text", "old"}}), "the tab \"Nowhere\" is not open");
}

TEST_F(FWizardRequestsTest, DescribeTheWizardsFirstPage)
{
	const FAnswer Tree = AskTab("widgets", "CineStreamWizard")["tree"];
	EXPECT_EQ(Tree["type"], "SCineStreamWizard");
	const FAnswer Title = Find(Tree, "Instant Cinestream Wizard");
	EXPECT_EQ(Title["textId"], "CineStreamWizard,Title");
	EXPECT_EQ(Title["font"], (FAnswer{{"typeface", "Regular"}, {"size", 19}}));
	EXPECT_EQ(Find(Tree, "Placeholder Text")["visibility"], "Hidden");
	EXPECT_EQ(Find(Tree, "Placeholder Text")["colour"], (FAnswer{1.0, 0.0, 0.0, 1.0}));
	EXPECT_EQ(Find(Tree, "Create Instant Cinestream Output")["shown"], true);
	EXPECT_EQ(Tree.dump().find("\"brush\":\"ZAVQuillon.WizardIcon_128x\"") != std::string::npos, true);
}

TEST_F(FWizardRequestsTest, DescribeTheMessageOfACreatedStream)
{
	Ask({{"do", "type"}, {"tab", "CineStreamWizard"}, {"text", "Main"}});
	Ask({{"do", "click"}, {"tab", "CineStreamWizard"}, {"text", "Create Instant Cinestream Output"}});
	const FAnswer Message = Find(AskTab("widgets", "CineStreamWizard")["tree"], "Cinestream 'Main' created!");
	ASSERT_FALSE(Message.is_null());
	EXPECT_EQ(Message["shown"], true);
	EXPECT_EQ(Message["format"]["arguments"], FAnswer::array({"Main"}));
}

TEST_F(FWizardRequestsTest, MeasureTheWizardsBox)
{
	const FAnswer Box = Ask({{"do", "geometry"}, {"tab", "CineStreamWizard"}, {"type", "SEditableTextBox"}});
	EXPECT_EQ(Box["x"], 60.0);
	EXPECT_EQ(Box["width"], 300.0);
}
