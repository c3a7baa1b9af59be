// Copyright Corvane. MIT License.
#include "TabFixture.h"

#include "TestEditor.h"
#include "TestMenu.h"

namespace
{
	/** Without the plugin, with the tests' buttons. */
	class FMenuRequestsTest : public FSessionFixture
	{
	protected:
		FMenuRequestsTest() : FSessionFixture(FTestEditor::EngineOnly()) {}

		FTestMenu Menu;
	};

	/** With the plugin's button. */
	using FPluginMenuRequestsTest = FSessionFixture;

	FAnswer GetEntry(const FAnswer& Menu, size_t Section, size_t Entry)
	{
		return Menu.at("sections").at(Section).at("entries").at(Entry);
	}
}

TEST_F(FMenuRequestsTest, ListTheToolbarsButtons)
{
	const FAnswer Buttons = Ask({{"do", "toolbar"}})["buttons"];
	ASSERT_EQ(Buttons.size(), 7U);
	const FAnswer Expected = {{"name", "TestMenu"}, {"label", "Test Menu"}, {"labelId", "TestMenu,Label"},
		{"tooltip", "Opens the menu"}, {"tooltipId", "TestMenu,ButtonTip"},
		{"icon", {{"style", "TestStyle"}, {"brush", "Test.Icon"}}}, {"section", "First"}, {"kind", "combo"}};
	EXPECT_EQ(Buttons[3].dump(), Expected.dump());
	EXPECT_EQ(Buttons[6]["section"], "Second");
	EXPECT_EQ(Buttons[6]["labelId"], nullptr);
}

TEST_F(FMenuRequestsTest, ListTheEditorsOwnButtonsFirst)
{
	const FAnswer Buttons = Ask({{"do", "toolbar"}})["buttons"];
	const FAnswer Save = {{"name", "Save"}, {"label", "Save Current"}, {"labelId", "LevelToolBar,Save"},
		{"tooltip", "Saves the current level to disk (Ctrl+S)"}, {"tooltipId", "LevelToolBar,SaveTip"},
		{"icon", nullptr}, {"section", "File"}, {"kind", "button"}};
	EXPECT_EQ(Buttons[0].dump(), Save.dump());
	EXPECT_EQ(Buttons[1]["name"], "Undo");
	EXPECT_EQ(Buttons[1]["section"], "Edit");
	EXPECT_EQ(Buttons[1]["kind"], "button");
	EXPECT_EQ(Buttons[2]["name"], "Redo");
	EXPECT_EQ(Buttons[2]["section"], "Edit");
}

TEST_F(FMenuRequestsTest, TellWhatCanBeUndoneAndRedoneInTheButtonsTooltips)
{
	EXPECT_EQ(Ask({{"do", "toolbar"}})["buttons"][1]["tooltip"], "Undo (Ctrl+Z)");
	Ask({{"do", "place"}, {"class", "Actor"}, {"location", {0, 0, 0}}, {"rotation", {0, 0, 0}}});
	EXPECT_EQ(Ask({{"do", "toolbar"}})["buttons"][1]["tooltip"], "Undo: Create Actors (Ctrl+Z)");
	EXPECT_EQ(Ask({{"do", "toolbar"}})["buttons"][2]["tooltip"], "Redo (Ctrl+Y)");
	Ask({{"do", "undo"}});
	EXPECT_EQ(Ask({{"do", "toolbar"}})["buttons"][1]["tooltip"], "Undo (Ctrl+Z)");
	EXPECT_EQ(Ask({{"do", "toolbar"}})["buttons"][2]["tooltip"], "Redo: Create Actors (Ctrl+Y)");
}

TEST_F(FMenuRequestsTest, ChooseNothingOfAPlainButton)
{
	Ask({{"do", "place"}, {"class", "Actor"}, {"location", {0, 0, 0}}, {"rotation", {0, 0, 0}}});
	EXPECT_EQ(
		GetRefusal({{"do", "choose"}, {"button", "Undo"}, {"entry", "Undo"}}), "the button \"Undo\" opens no menu");
	EXPECT_EQ(GetRefusal({{"do", "menu"}, {"button", "Redo"}}), "the button \"Redo\" is disabled");
	EXPECT_EQ(Ask({{"do", "level"}})["actors"].size(), 1U);
}

TEST_F(FMenuRequestsTest, ShowAMenuWithItsSections)
{
	const FAnswer Shown = Ask({{"do", "menu"}, {"button", "Test Menu"}});
	EXPECT_EQ(Shown["searchable"], false);
	EXPECT_EQ(Shown["maxHeight"], 250);
	EXPECT_EQ(Shown["closes"], false);
	ASSERT_EQ(Shown["sections"].size(), 2U);
	EXPECT_EQ(Shown["sections"][0]["hook"], nullptr);
	EXPECT_EQ(Shown["sections"][0]["heading"], "");
	EXPECT_EQ(Shown["sections"][0]["headingId"], nullptr);
	EXPECT_EQ(Shown["sections"][1]["hook"], "Hook");
	EXPECT_EQ(Shown["sections"][1]["heading"], "A Heading");
	EXPECT_EQ(Shown["sections"][1]["headingId"], "TestMenu,Heading");
}

TEST_F(FMenuRequestsTest, ShowEntriesAsTheMenuDoes)
{
	const FAnswer Shown = Ask({{"do", "menu"}, {"button", "Test Menu"}});
	const FAnswer Open = {{"label", "Open It"}, {"labelId", "TestMenu,Open"}, {"tooltip", "A tip"},
		{"tooltipId", "TestMenu,Tip"}, {"command", "Open"}, {"checked", nullptr}, {"enabled", true},
		{"icon", {{"style", "TestStyle"}, {"brush", "Open"}}}};
	EXPECT_EQ(GetEntry(Shown, 0, 0).dump(), Open.dump());
	const FAnswer Idle = {{"label", "Does Nothing"}, {"labelId", nullptr}, {"tooltip", ""}, {"tooltipId", nullptr},
		{"command", "Idle"}, {"checked", nullptr}, {"enabled", true}, {"icon", nullptr}};
	EXPECT_EQ(GetEntry(Shown, 1, 3), Idle);
}

TEST_F(FMenuRequestsTest, ShowTheStateOfAToggleAnewEachTime)
{
	const nlohmann::json Request = {{"do", "menu"}, {"button", "Test Menu"}};
	EXPECT_EQ(GetEntry(Ask(Request), 1, 0)["checked"], false);
	Ask({{"do", "choose"}, {"button", "Test Menu"}, {"entry", "Light"}});
	EXPECT_EQ(GetEntry(Ask(Request), 1, 0)["checked"], true);
	EXPECT_EQ(GetEntry(Ask(Request), 1, 0)["enabled"], true);
	Menu.bCanLight = false;
	EXPECT_EQ(GetEntry(Ask(Request), 1, 0)["enabled"], false);
}

TEST_F(FMenuRequestsTest, AnswerWhyNothingOpensOrIsChosen)
{
	EXPECT_EQ(GetRefusal({{"do", "menu"}, {"button", "Dead"}}), "the button \"Dead\" is disabled");
	EXPECT_EQ(GetRefusal({{"do", "choose"}, {"button", "Test Menu"}, {"entry", "Shut It"}}),
		"the menu has no entry \"Shut It\"");
	EXPECT_EQ(Menu.OpenCount, 0);
}

TEST_F(FPluginMenuRequestsTest, ShowThePluginsButtonAndMenu)
{
	const FAnswer Buttons = Ask({{"do", "toolbar"}})["buttons"];
	ASSERT_EQ(Buttons.size(), 4U);
	EXPECT_EQ(Buttons[3]["name"], "Corvane");
	EXPECT_EQ(Buttons[3]["section"], "Settings");
	EXPECT_EQ(Buttons[3]["tooltipId"], "FQuillonEditorModule,CorvaneBtnTootlip");
	EXPECT_EQ(Buttons[3]["icon"]["brush"], "ZAVQuillOn.PluginTaskbarIcon");
	const FAnswer Shown = Ask({{"do", "menu"}, {"button", "Corvane"}});
	EXPECT_EQ(Shown["searchable"], true);
	EXPECT_EQ(Shown["maxHeight"], 1000);
	EXPECT_EQ(Shown["closes"], true);
	EXPECT_EQ(Shown["sections"].size(), 4U);
	EXPECT_EQ(GetEntry(Shown, 0, 0)["command"], "UseCineStreamSetupWizard");
}

TEST_F(FPluginMenuRequestsTest, OpenTheWizardFromTheMenu)
{
	Ask({{"do", "choose"}, {"button", "Corvane"}, {"entry", "Cine Stream Wizard"}});
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"].at(0)["id"], "CineStreamWizard");
}
