// Copyright Corvane. MIT License.
#include "TabFixture.h"

#include "EngineText.h"
#include "Internationalization/Internationalization.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "TestEditor.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "TestTabs"

using nlohmann::json;

FSessionFixture::FSessionFixture(const FStandaloneEditorOptions& Options)
{
	std::string Error;
	const bool bStarted = Session.Start(Options, Error);
	EXPECT_TRUE(bStarted) << Error;
}

FAnswer FSessionFixture::Ask(const json& Request)
{
	FAnswer Answer = AskLine(Request.dump());
	EXPECT_TRUE(Answer["ok"]) << Answer;
	EXPECT_EQ(Answer["do"], Request["do"].get<std::string>());
	return Answer;
}

FAnswer FSessionFixture::AskLine(const std::string& Line)
{
	return FAnswer::parse(FRequestTable::Answer(Session, Line));
}

std::string FSessionFixture::GetRefusal(const json& Request)
{
	const std::string Before = DescribeAll();
	const FAnswer Answer = AskLine(Request.dump());
	EXPECT_FALSE(Answer["ok"]) << Answer;
	EXPECT_EQ(DescribeAll(), Before);
	return Answer.value("error", std::string());
}

std::string FSessionFixture::DescribeAll()
{
	const FAnswer Tabs = Ask({{"do", "tabs"}});
	std::string All = Tabs.dump();
	for (const FAnswer& Tab : Tabs["tabs"])
	{
		All += Ask({{"do", "widgets"}, {"tab", Tab["id"]}}).dump();
	}
	return All;
}

FTabFixture::FTabFixture() : FSessionFixture(FTestEditor::EngineOnly()), Style("TestStyle")
{
	Style.Set("Test.Icon", new FSlateBrush());
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	const FCanSpawnTab Can = FCanSpawnTab::CreateRaw(this, &FTabFixture::CanSpawn);
	FGlobalTabmanager::Get()
		->RegisterNomadTabSpawner("TestPage", FOnSpawnTab::CreateRaw(this, &FTabFixture::SpawnPage), Can)
		.SetDisplayName(LOCTEXT("Page", "Test Page"))
		.SetTooltipText(FText::FromString(TEXT("Opens it.")))
		.SetIcon(FSlateIcon("testStyle", "Test.icon"))
		.SetAutoGenerateMenuEntry(false);
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(
		"TestOther", FOnSpawnTab::CreateRaw(this, &FTabFixture::SpawnOther), Can);
}

FTabFixture::~FTabFixture()
{
	Session.GetEditor().Shutdown();
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("TestPage");
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("TestOther");
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}

FAnswer FTabFixture::GetNode(std::initializer_list<size_t> Place)
{
	FAnswer Node = AskTab("widgets", "TestPage")["tree"];
	for (const size_t Index : Place)
	{
		Node = FAnswer(Node.at("children").at(Index));
	}
	return Node;
}

TSharedRef<SDockTab> FTabFixture::SpawnPage(const FSpawnTabArgs& /*Args*/)
{
	// clang-format off
	return SNew(SDockTab)
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight() [ MakeTexts() ]
		+ SVerticalBox::Slot().FillHeight(2.5f) [ MakeBoxes() ]
		+ SVerticalBox::Slot().AutoHeight() [ MakeImages() ]
		+ SVerticalBox::Slot().AutoHeight() [ MakeButtons() ]
	];
	// clang-format on
}

TSharedRef<SDockTab> FTabFixture::SpawnOther(const FSpawnTabArgs& /*Args*/)
{
	return SNew(SDockTab)[SNew(STextBlock).Text(FText::FromString(TEXT("Other")))];
}

// clang-format off
TSharedRef<SWidget> FTabFixture::MakeTexts()
{
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right).VAlign(VAlign_Bottom).Padding(1.0f, 2.5f, 3.0f, 4.1f)
		[
			SAssignNew(Title, STextBlock)
				.Text(LOCTEXT("Title", "The Title"))
				.Font(FCoreStyle::GetDefaultFontStyle("Italic", 8))
				.ColorAndOpacity(FSlateColor(FLinearColor(1.0f, 0.5f, 0.1f, 0.25f)))
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(STextBlock).Text(FText::Format(
				LOCTEXT("Pattern", "{0} of {1}"), LOCTEXT("One", "One"), FText::FromString(TEXT("{0}"))))
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(STextBlock).Text(FText::FromString(TEXT("Hidden"))).Visibility(EVisibility::Hidden)
		];
}

TSharedRef<SWidget> FTabFixture::MakeBoxes()
{
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		[
			SAssignNew(First, SEditableTextBox)
				.Text(FText::FromString(TEXT("old")))
				.OnTextChanged_Raw(this, &FTabFixture::OnChanged, "first")
				.OnTextCommitted_Raw(this, &FTabFixture::OnCommitted, "first")
		]
		+ SVerticalBox::Slot()
		[
			SAssignNew(Group, SVerticalBox)
				.Visibility(EVisibility::Collapsed)
				+ SVerticalBox::Slot() [ SNew(SEditableTextBox).Text(FText::FromString(TEXT("collapsed"))) ]
				+ SVerticalBox::Slot() [ MakeButton(TEXT("Press")) ]
		]
		+ SVerticalBox::Slot()
		[
			SAssignNew(Second, SEditableTextBox)
				.OnTextChanged_Raw(this, &FTabFixture::OnChanged, "second")
				.OnTextCommitted_Raw(this, &FTabFixture::OnCommitted, "second")
		];
}

TSharedRef<SWidget> FTabFixture::MakeImages()
{
	return SNew(SOverlay)
		+ SOverlay::Slot().HAlign(HAlign_Center).VAlign(VAlign_Top)
		[
			SAssignNew(Icon, SImage).Image(Style.GetBrush("test.icon"))
		]
		+ SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Center)
		[
			SNew(SImage).Image(&Nameless)
		]
		+ SOverlay::Slot()
		[
			SNew(SImage)
		];
}

TSharedRef<SWidget> FTabFixture::MakeButtons()
{
	Dead = MakeButton(TEXT("Dead"));
	Dead->SetEnabled(false);
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight() [ MakeButton(TEXT("Press")) ]
		+ SVerticalBox::Slot().AutoHeight() [ Dead.ToSharedRef() ]
		+ SVerticalBox::Slot().AutoHeight() [ MakeButton(TEXT("Twin")) ]
		+ SVerticalBox::Slot().AutoHeight() [ MakeButton(TEXT("Twin")) ];
}

TSharedRef<SButton> FTabFixture::MakeButton(const TCHAR* Caption)
{
	return SNew(SButton)
		.OnClicked_Raw(this, &FTabFixture::OnPressed)
		[
			SNew(STextBlock).Text(FText::FromString(Caption))
		];
}
// clang-format on

void FTabFixture::OnChanged(const FText& Text, const char* Box)
{
	Log.push_back(std::string(Box) + " changed " + FEngineText::ForDisplay(Text.ToString()));
}

void FTabFixture::OnCommitted(const FText& Text, ETextCommit::Type Type, const char* Box)
{
	const char* Names[] = {"default", "enter", "moved", "cleared"};
	Log.push_back(std::string(Box) + " committed " + FEngineText::ForDisplay(Text.ToString()) + " by " + Names[Type]);
	if (AfterCommit)
	{
		AfterCommit();
	}
}

FReply FTabFixture::OnPressed()
{
	Log.emplace_back("pressed");
	return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
