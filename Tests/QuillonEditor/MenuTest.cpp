// Copyright Corvane. MIT License.
#include "DrivenEditor.h"

#include <filesystem>

#include "TemporaryFolder.h"

#include "EditorMenus.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/CoreDelegates.h"
#include "Standalone/TextFormatInspector.h"
#include "Styling/CoreStyle.h"
#include "TextDescription.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"

using nlohmann::json;

/** The toolbar button's menu down to what only the stand-alone menus tell: hooks, icons, identities, switches. */
class FPluginMenu : public FDrivenEditor
{
protected:
	json ReadMenu() { return Ask({{"do", "menu"}, {"button", "Corvane"}}); }
	void Choose(const char* Entry) { Ask({{"do", "choose"}, {"button", "Corvane"}, {"entry", Entry}}); }
	json FindEntry(const char* Label)
	{
		const json Menu = ReadMenu();
		for (const json& Section : Menu["sections"])
		{
			for (const json& Entry : Section["entries"])
			{
				if (Entry["label"] == Label)
				{
					return Entry;
				}
			}
		}
		return nullptr;
	}
};

TEST_F(FPluginMenu, HangsOnOneButtonInTheToolbarsSettingsBehindTheEditorsOwn)
{
	const json Buttons = Ask("toolbar")["buttons"];
	ASSERT_EQ(Buttons.size(), 4U);
	EXPECT_EQ(
		Buttons[3], json::parse(R"({"name":"Corvane","label":"Corvane","labelId":"FQuillonEditorModule,CorvaneBtn",
			"tooltip":"Corvane","tooltipId":"FQuillonEditorModule,CorvaneBtnTootlip",
			"icon":{"style":"QuillonEditorStyle","brush":"ZAVQuillOn.PluginTaskbarIcon"},
			"section":"Settings","kind":"combo"})"));
}

TEST_F(FPluginMenu, CanBeSearchedClosesAfterAChoiceAndScrollsBeyondAThousandUnits)
{
	const json Menu = ReadMenu();
	EXPECT_EQ(Menu["searchable"], true);
	EXPECT_EQ(Menu["closes"], true);
	EXPECT_EQ(Menu["maxHeight"], 1000);
}

TEST_F(FPluginMenu, HangsOnAButtonThatDoesNothingItselfAndIsDrawnInTheCoreStyle)
{
	const FToolMenuEntry& Button = *FEditorMenus::GetButtons().back().Entry;
	const FUIAction* Action = Button.Action.GetUIAction();
	ASSERT_NE(Action, nullptr);
	EXPECT_FALSE(Action->ExecuteAction.IsBound());
	EXPECT_FALSE(Action->CanExecuteAction.IsBound());
	EXPECT_FALSE(Action->GetActionCheckState.IsBound());
	EXPECT_TRUE(Button.TutorialHighlightName.IsNone());
	std::string Error;
	const TSharedPtr<const FMultiBox> Menu = FEditorMenus::Open(TEXT("Corvane"), Error);
	EXPECT_EQ(Menu->StyleSet, &FCoreStyle::Get());
	EXPECT_FALSE(Menu->Extender.IsValid());
	EXPECT_FALSE(Menu->bCloseSelfOnly);
	EXPECT_TRUE(Menu->MenuName.IsNone());
}

TEST_F(FPluginMenu, BringsTheWizardsOpenTabForward)
{
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner("Other",
		FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab).TabRole(ETabRole::NomadTab); }));
	Choose("Cine Stream Wizard");
	Ask({{"do", "invoke-tab"}, {"tab", "Other"}});
	Choose("Cine Stream Wizard");
	const json Tabs = Ask("tabs")["tabs"];
	ASSERT_EQ(Tabs.size(), 2U);
	EXPECT_EQ(Tabs[0]["id"], "CineStreamWizard");
	EXPECT_EQ(Tabs[0]["front"], true);
	Ask({{"do", "close-tab"}, {"tab", "Other"}});
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("Other");
}

TEST_F(FPluginMenu, FormatsTheVersionsIntoATranslatedPattern)
{
	FText Shown;
	const FCoreDelegates::FOnModalMessageBox Former = FCoreDelegates::ModalErrorMessage;
	FCoreDelegates::ModalErrorMessage = FCoreDelegates::FOnModalMessageBox::CreateLambda(
		[&Shown](EAppMsgType::Type, const FText& Text, const FText&)
		{
			Shown = Text;
			return EAppReturnType::Ok;
		});
	Choose("Plugin Version");
	FCoreDelegates::ModalErrorMessage = Former;
	ASSERT_NE(FTextFormatInspector::GetPattern(Shown), nullptr);
	EXPECT_EQ(DescribeText(*FTextFormatInspector::GetPattern(Shown)),
		"FQuillonEditorModule,PluginButtonDialogText,Plugin Version: {0} \nEngine Version: {1}");
}

TEST_F(FPluginMenu, HasFourSectionsOfWhichOnlyToolsIsTranslated)
{
	json Headings;
	const json Menu = ReadMenu();
	for (const json& Section : Menu["sections"])
	{
		Headings.push_back({Section["hook"], Section["heading"], Section["headingId"]});
	}
	EXPECT_EQ(Headings, json::parse(R"([[null,"Tools","FQuillonEditorModule,ToolsSection"],
		["SettingsSection","Settings",null],["AccountSection","Account",null],["Support Section","Support",null]])"));
}

TEST_F(FPluginMenu, OverridesTheWizardsTextsWithUntranslatedOnesAndGivesItAnIcon)
{
	EXPECT_EQ(FindEntry("Cine Stream Wizard"), json::parse(R"({"label":"Cine Stream Wizard","labelId":null,
			"tooltip":"Use to create a simple Cinecam Capture and Spout setup to stream out of ue4","tooltipId":null,
			"command":"UseCineStreamSetupWizard","checked":null,"enabled":true,
			"icon":{"style":"QuillonEditorStyle","brush":"ZAVQuillon.WizardIcon_16x"}})"));
}

TEST_F(FPluginMenu, ShowsTheOtherCommandsAsTheyAre)
{
	const char* const Commands[][2] = {{"EditorViewportRendering", "Editor Viewport Rendering"},
		{"RuntimeViewportRendering", "Runtime Viewport Rendering"}, {"PluginVersion", "Plugin Version"},
		{"KnowledgeCentre", "Knowledge Centre"}, {"VideoTutorials", "Video Tutorials"},
		{"DiscordCommunity", "Discord Community"}, {"CorvaneWebsite", "Corvane Website"}};
	for (const auto& [Command, Label] : Commands)
	{
		const json Entry = FindEntry(Label);
		ASSERT_FALSE(Entry.is_null()) << Label;
		EXPECT_EQ(Entry["command"], Command);
		EXPECT_EQ(Entry["labelId"], std::string("FQuillonEditorModule,") + Command);
		EXPECT_EQ(Entry["tooltipId"], std::string("FQuillonEditorModule,") + Command + "_ToolTip");
		EXPECT_EQ(Entry["enabled"], true) << Label;
		EXPECT_TRUE(Entry["icon"].is_null()) << Label;
		const bool bToggle = std::string(Label).find("Rendering") != std::string::npos;
		EXPECT_EQ(Entry["checked"].is_null(), !bToggle) << Label;
	}
}

TEST_F(FPluginMenu, FlipsEachToggleForItself)
{
	const json Editor = FindEntry("Editor Viewport Rendering")["checked"];
	Choose("Editor Viewport Rendering");
	EXPECT_EQ(FindEntry("Editor Viewport Rendering")["checked"], !Editor.get<bool>());
	Choose("Editor Viewport Rendering");
	const json Runtime = FindEntry("Runtime Viewport Rendering")["checked"];
	Choose("Runtime Viewport Rendering");
	EXPECT_EQ(FindEntry("Editor Viewport Rendering")["checked"], Editor);
	EXPECT_EQ(FindEntry("Runtime Viewport Rendering")["checked"], !Runtime.get<bool>());
	Choose("Runtime Viewport Rendering");
	EXPECT_EQ(FindEntry("Runtime Viewport Rendering")["checked"], Runtime);
}

TEST_F(FPluginMenu, OpensEachSupportPageOnce)
{
	for (const char* Entry : {"Knowledge Centre", "Video Tutorials", "Discord Community", "Corvane Website"})
	{
		Choose(Entry);
	}
	const json Outside = Ask("outside");
	EXPECT_EQ(Outside["addresses"],
		json({"https://docs.corvane.example/#/", "https://video.corvane.example/channel/corvane",
			"https://chat.corvane.example/invite/quillon", "https://www.corvane.example/"}));
	EXPECT_EQ(Outside["refused"], json::array()) << "the opener would pass each of them on";
}

TEST_F(FPluginMenu, ShowsTheVersionsOfTheDescriptorInABoxWithoutTitle)
{
	Choose("Plugin Version");
	EXPECT_EQ(Ask("outside")["messages"],
		json::parse(R"([{"kind":"Ok","text":"Plugin Version: 1.0 \nEngine Version: 4.27.0","title":null}])"));
}

TEST(FPluginMenuOfAnotherDescriptor, ShowsTheVersionsThatStandThere)
{
	json Descriptor = json::parse(FTemporaryFolder::ReadFile(std::string(QUILLON_PROJECT_DIR) + "/ZAVQuillon.uplugin"));
	Descriptor["VersionName"] = "2.5 beta";
	Descriptor["EngineVersion"] = "4.27.2-Theirs";
	const FTemporaryFolder Project;
	Project.Write("ZAVQuillon.uplugin", Descriptor.dump());
	FStandaloneEditorOptions Options;
	Options.ProjectDir = Project.File("");
	FDriverSession Session;
	std::string Error;
	ASSERT_TRUE(Session.Start(Options, Error)) << Error;
	FDrivenEditor::Ask(Session, {{"do", "choose"}, {"button", "Corvane"}, {"entry", "Plugin Version"}});
	EXPECT_EQ(FDrivenEditor::Ask(Session, {{"do", "outside"}})["messages"],
		json::parse(
			R"([{"kind":"Ok","text":"Plugin Version: 2.5 beta \nEngine Version: 4.27.2-Theirs","title":null}])"));
}

TEST(FPluginMenuWithoutDescriptor, ShowsTheVersionDialogWithNothingToSay)
{
	const FTemporaryFolder Project;
	std::filesystem::copy_file(
		std::string(QUILLON_PROJECT_DIR) + "/ZAVQuillon.uplugin", Project.File("ZAVQuillon.uplugin"));
	FStandaloneEditorOptions Options;
	Options.ProjectDir = Project.File("");
	FDriverSession Session;
	std::string Error;
	ASSERT_TRUE(Session.Start(Options, Error)) << Error;
	std::filesystem::remove(Project.File("ZAVQuillon.uplugin"));
	IPluginManager::Get().RefreshPluginsList();
	FDrivenEditor::Ask(Session, {{"do", "choose"}, {"button", "Corvane"}, {"entry", "Plugin Version"}});
	EXPECT_EQ(FDrivenEditor::Ask(Session, {{"do", "outside"}})["messages"],
		json::parse(R"([{"kind":"Ok","text":"Plugin Version:  \nEngine Version: ","title":null}])"));
}
