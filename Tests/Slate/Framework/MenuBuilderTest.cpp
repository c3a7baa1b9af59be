// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "TestCommands.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Commands of which Open counts its calls and Light switches a lamp, and menus of them. */
	class FMenuBuilderTest : public FSlateFixture
	{
	public:
		FMenuBuilderTest()
		{
			FTestCommands::Register();
			List->MapAction(Commands().Open, FExecuteAction::CreateLambda([this]() { ++Opened; }));
			List->MapAction(Commands().Light, FExecuteAction::CreateLambda([this]() { bIsOn = !bIsOn; }),
				FCanExecuteAction::CreateLambda([this]() { return bIsPlugged; }),
				FIsActionChecked::CreateLambda([this]() { return bIsOn; }));
		}
		virtual ~FMenuBuilderTest() override { FTestCommands::Unregister(); }

		static const FTestCommands& Commands() { return FTestCommands::Get(); }
		static TSharedRef<const FMultiBox> GetModel(const TSharedRef<SWidget>& Menu)
		{
			EXPECT_EQ(Menu->GetType(), FName("SMultiBoxWidget"));
			return StaticCastSharedRef<SMultiBoxWidget>(Menu)->GetMultiBox();
		}
		/** A menu of Open and Light, without sections. */
		TSharedRef<SWidget> MakeMenu() const
		{
			FMenuBuilder Builder(true, List);
			Builder.AddMenuEntry(Commands().Open);
			Builder.AddMenuEntry(Commands().Light);
			return Builder.MakeWidget();
		}
		static const FMultiBlock& GetEntry(const TSharedRef<SWidget>& Menu, int32 Index)
		{
			return *GetModel(Menu)->Sections[0].Blocks[Index];
		}
		static void Collect(const TSharedRef<SWidget>& Widget, const FString& Type, TArray<TSharedRef<SWidget>>& Found)
		{
			if (Widget->GetTypeAsString().Equals(Type))
			{
				Found.Add(Widget);
			}
			FChildren* Children = Widget->GetChildren();
			for (int32 Index = 0; Index < Children->Num(); ++Index)
			{
				Collect(Children->GetChildAt(Index), Type, Found);
			}
		}
		/** The widgets of a type, in tree order. */
		template <typename WidgetType>
		static TArray<TSharedRef<WidgetType>> Find(const TSharedRef<SWidget>& Menu, const TCHAR* Type)
		{
			TArray<TSharedRef<SWidget>> Found;
			Collect(Menu, Type, Found);
			TArray<TSharedRef<WidgetType>> Result;
			for (const TSharedRef<SWidget>& Widget : Found)
			{
				Result.Add(StaticCastSharedRef<WidgetType>(Widget));
			}
			return Result;
		}
		static FString GetCaptions(const TSharedRef<SWidget>& Menu)
		{
			FString Captions;
			for (const TSharedRef<STextBlock>& Text : Find<STextBlock>(Menu, TEXT("STextBlock")))
			{
				Captions += Text->GetText().ToString() + TEXT("|");
			}
			return Captions;
		}

		TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
		int32 Opened = 0;
		bool bIsOn = false;
		bool bIsPlugged = true;
	};

	typedef FMenuBuilderTest FMenuBuilderDeathTest;
}

TEST_F(FMenuBuilderTest, KeepsSectionsAndEntriesInTheirOrder)
{
	FMenuBuilder Builder(true, List);
	Builder.BeginSection(NAME_None, NSLOCTEXT("Test", "Tools", "Tools"));
	Builder.AddMenuEntry(Commands().Light);
	Builder.AddMenuEntry(Commands().Open);
	Builder.EndSection();
	Builder.BeginSection("Support Section", FText::FromString(TEXT("Support")));
	Builder.AddMenuEntry(Commands().Open);
	Builder.EndSection();
	const TSharedRef<SWidget> Menu = Builder.MakeWidget(nullptr, 1000);
	const TArray<FMultiBoxSection>& Sections = GetModel(Menu)->Sections;
	ASSERT_EQ(Sections.Num(), 2);
	EXPECT_TRUE(Sections[0].ExtensionHook.IsNone());
	EXPECT_TRUE(Sections[0].Heading.Get().IdenticalTo(NSLOCTEXT("Test", "Tools", "Tools")));
	EXPECT_TRUE(Sections[1].ExtensionHook.ToString().Equals(TEXT("Support Section")));
	ASSERT_EQ(Sections[0].Blocks.Num(), 2);
	EXPECT_TRUE(Sections[0].Blocks[0]->GetAction() == Commands().Light);
	EXPECT_TRUE(Sections[0].Blocks[1]->GetAction() == Commands().Open);
	EXPECT_TRUE(GetCaptions(Menu).Equals(TEXT("Tools|Light|Open It|Support|Open It|")));
}

TEST_F(FMenuBuilderTest, TakesEntriesOutsideOfSections)
{
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open);
	Builder.BeginSection("Hook", INVTEXT("Heading"));
	Builder.AddMenuEntry(Commands().Light);
	Builder.EndSection();
	Builder.AddMenuEntry(Commands().Open);
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	const TArray<FMultiBoxSection>& Sections = GetModel(Menu)->Sections;
	ASSERT_EQ(Sections.Num(), 3);
	EXPECT_TRUE(Sections[0].ExtensionHook.IsNone());
	EXPECT_TRUE(Sections[2].ExtensionHook.IsNone());
	EXPECT_TRUE(Sections[2].Heading.Get().IsEmpty());
	EXPECT_TRUE(GetCaptions(Menu).Equals(TEXT("Open It|Heading|Light|Open It|")));
}

TEST_F(FMenuBuilderTest, ShowsNoSectionWithoutEntries)
{
	FMenuBuilder Builder(true, List);
	Builder.BeginSection("Empty", INVTEXT("Empty"));
	Builder.EndSection();
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_EQ(GetModel(Menu)->Sections.Num(), 0);
	EXPECT_TRUE(GetCaptions(Menu).IsEmpty());
}

RC_GTEST_FIXTURE_PROP(FMenuBuilderTest, GroupsAnySequenceOfSectionsAndEntries, ())
{
	FMenuBuilder Builder(true, List);
	// A string for each section that has entries: its hook, then an o for each entry.
	std::vector<std::string> Expected;
	std::string Hook;
	bool bIsOpen = false;
	bool bStartsSection = true;
	for (const int Step : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 4)))
	{
		if (Step > 1)
		{
			Builder.AddMenuEntry(Commands().Open);
			Expected.resize(Expected.size() + (bStartsSection ? 1 : 0), Hook);
			Expected.back() += "o";
			bStartsSection = false;
			continue;
		}
		bIsOpen ? Builder.EndSection() : Builder.BeginSection(Step == 0 ? "A" : "B");
		bIsOpen = !bIsOpen;
		Hook = !bIsOpen ? "" : Step == 0 ? "A" : "B";
		bStartsSection = true;
	}
	std::vector<std::string> Actual;
	const TSharedRef<const FMultiBox> Model = GetModel(Builder.MakeWidget());
	for (const FMultiBoxSection& Section : Model->Sections)
	{
		const FString SectionHook = Section.ExtensionHook.IsNone() ? FString() : Section.ExtensionHook.ToString();
		Actual.push_back(std::string(*SectionHook, *SectionHook + SectionHook.Len()) +
			std::string(static_cast<size_t>(Section.Blocks.Num()), 'o'));
	}
	RC_ASSERT(Actual == Expected);
}

TEST_F(FMenuBuilderDeathTest, DiesOfASectionWithinASection)
{
	FMenuBuilder Builder(true, List);
	Builder.BeginSection("Outer");
	EXPECT_EXIT(Builder.BeginSection("Inner"), ::testing::ExitedWithCode(3), "still open");
}

TEST_F(FMenuBuilderDeathTest, DiesOfNoCommand)
{
	FMenuBuilder Builder(true, List);
	EXPECT_EXIT(Builder.AddMenuEntry(nullptr), ::testing::ExitedWithCode(3), "IsValid");
}

TEST_F(FMenuBuilderTest, ShowsACommandsOwnLabelAndTooltipAndIcon)
{
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open);
	Builder.AddMenuEntry(Commands().Keyed);
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_TRUE(GetEntry(Menu, 0).GetLabel().IdenticalTo(NSLOCTEXT("Test", "Open", "Open It")));
	EXPECT_TRUE(GetEntry(Menu, 0).GetToolTip().IdenticalTo(NSLOCTEXT("Test", "Open_ToolTip", "Opens it")));
	EXPECT_FALSE(GetEntry(Menu, 0).GetIcon().IsSet());
	EXPECT_EQ(GetEntry(Menu, 1).GetIcon().GetStyleName(), FName("Test.Keyed"));
	EXPECT_TRUE(
		Find<STextBlock>(Menu, TEXT("STextBlock"))[0]->GetText().IdenticalTo(NSLOCTEXT("Test", "Open", "Open It")));
}

TEST_F(FMenuBuilderTest, ShowsOverridesInsteadAndKeepsTheirIdentity)
{
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Keyed, NAME_None, NSLOCTEXT("Other", "Label", "Label"),
		FText::FromString(TEXT("Tip")), FSlateIcon("OtherStyle", "Other.Icon"));
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	const FMultiBlock& Entry = GetEntry(Menu, 0);
	EXPECT_TRUE(Entry.GetLabel().IdenticalTo(NSLOCTEXT("Other", "Label", "Label")));
	EXPECT_TRUE(Entry.GetToolTip().ToString().Equals(TEXT("Tip")));
	EXPECT_FALSE(FTextInspector::GetKey(Entry.GetToolTip()).IsSet());
	EXPECT_TRUE(Entry.GetIcon().GetStyleName().ToString().Equals(TEXT("Other.Icon")));
	EXPECT_TRUE(GetCaptions(Menu).Equals(TEXT("Label|")));
}

TEST_F(FMenuBuilderTest, AsksForABoundLabelEachTime)
{
	FString Label(TEXT("One"));
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open, NAME_None,
		TAttribute<FText>::Create(
			TAttribute<FText>::FGetter::CreateLambda([&Label]() { return FText::FromString(Label); })));
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_TRUE(GetCaptions(Menu).Equals(TEXT("One|")));
	Label = TEXT("Two");
	EXPECT_TRUE(GetCaptions(Menu).Equals(TEXT("Two|")));
}

TEST_F(FMenuBuilderTest, ShowsAnImageOnlyForAnEntryWithAnIcon)
{
	FSlateStyleSet Style("TestStyle");
	FSlateBrush* Brush = new FSlateImageBrush(TEXT("Keyed.png"), FVector2D(20.0f, 20.0f));
	Style.Set("Test.Keyed", Brush);
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open);
	Builder.AddMenuEntry(Commands().Keyed);
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	const TArray<TSharedRef<SImage>> Images = Find<SImage>(Menu, TEXT("SImage"));
	ASSERT_EQ(Images.Num(), 1);
	EXPECT_EQ(Images[0]->GetImage(), FStyleDefaults::GetNoBrush());
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(Images[0]->GetImage(), Brush);
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}

TEST_F(FMenuBuilderTest, ShowsACheckBoxWithTheStateOfEachReadingForAToggle)
{
	const TSharedRef<SWidget> Menu = MakeMenu();
	EXPECT_FALSE(GetEntry(Menu, 0).IsCheckable());
	EXPECT_TRUE(GetEntry(Menu, 1).IsCheckable());
	const TArray<TSharedRef<SCheckBox>> Boxes = Find<SCheckBox>(Menu, TEXT("SCheckBox"));
	ASSERT_EQ(Boxes.Num(), 1);
	EXPECT_FALSE(Boxes[0]->IsChecked());
	EXPECT_EQ(GetEntry(Menu, 1).GetCheckState(), ECheckBoxState::Unchecked);
	bIsOn = true;
	EXPECT_TRUE(Boxes[0]->IsChecked());
	EXPECT_EQ(GetEntry(Menu, 1).GetCheckState(), ECheckBoxState::Checked);
}

TEST_F(FMenuBuilderTest, ShowsACheckBoxForTogglesRadioButtonsAndChecksOnly)
{
	const TSharedRef<FBindingContext> Context = MakeShared<FBindingContext>("Looks", FText(), NAME_None, NAME_None);
	const auto HasCheckBox = [this, &Context](EUserInterfaceActionType Type)
	{
		TSharedPtr<FUICommandInfo> Command;
		FUICommandInfo::MakeCommandInfo(Context, Command, FName("Look", static_cast<int32>(Type)), FText(), FText(),
			FSlateIcon(), Type, FInputChord());
		FMenuBuilder Builder(true, List);
		Builder.AddMenuEntry(Command);
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();
		const bool bHasCheckBox = Find<SCheckBox>(Menu, TEXT("SCheckBox")).Num() == 1;
		EXPECT_EQ(GetEntry(Menu, 0).IsCheckable(), bHasCheckBox);
		return bHasCheckBox;
	};
	EXPECT_FALSE(HasCheckBox(EUserInterfaceActionType::None));
	EXPECT_FALSE(HasCheckBox(EUserInterfaceActionType::Button));
	EXPECT_TRUE(HasCheckBox(EUserInterfaceActionType::ToggleButton));
	EXPECT_TRUE(HasCheckBox(EUserInterfaceActionType::RadioButton));
	EXPECT_TRUE(HasCheckBox(EUserInterfaceActionType::Check));
	EXPECT_FALSE(HasCheckBox(EUserInterfaceActionType::CollapsedButton));
	FInputBindingManager::Get().RemoveContextByName("Looks");
}

TEST_F(FMenuBuilderTest, ChoosesAnEntryOnceForAClick)
{
	const TSharedRef<SWidget> Menu = MakeMenu();
	const TArray<TSharedRef<SButton>> Buttons = Find<SButton>(Menu, TEXT("SButton"));
	ASSERT_EQ(Buttons.Num(), 2);
	Click(Buttons[0]);
	EXPECT_EQ(Opened, 1);
	EXPECT_FALSE(bIsOn);
	Click(Find<STextBlock>(Menu, TEXT("STextBlock"))[0]);
	EXPECT_EQ(Opened, 2);
	Click(Buttons[1]);
	EXPECT_TRUE(bIsOn);
	EXPECT_EQ(Opened, 2);
}

TEST_F(FMenuBuilderTest, ChoosesAnEntryOnceForAClickOnItsCheckBox)
{
	const TSharedRef<SWidget> Menu = MakeMenu();
	const TSharedRef<SCheckBox> Box = Find<SCheckBox>(Menu, TEXT("SCheckBox"))[0];
	Click(Box);
	EXPECT_TRUE(bIsOn);
	EXPECT_TRUE(Box->IsChecked());
	Click(Box);
	EXPECT_FALSE(bIsOn);
}

TEST_F(FMenuBuilderTest, ChoosesAnEntryOnceThroughItsModel)
{
	const TSharedRef<SWidget> Menu = MakeMenu();
	EXPECT_TRUE(GetEntry(Menu, 0).Execute());
	EXPECT_EQ(Opened, 1);
	EXPECT_TRUE(GetEntry(Menu, 1).Execute());
	EXPECT_TRUE(bIsOn);
}

TEST_F(FMenuBuilderTest, ChoosesNoDisabledEntry)
{
	const TSharedRef<SWidget> Menu = MakeMenu();
	const TSharedRef<SButton> Button = Find<SButton>(Menu, TEXT("SButton"))[1];
	bIsPlugged = false;
	EXPECT_FALSE(Button->IsEnabled());
	EXPECT_FALSE(GetEntry(Menu, 1).CanExecute());
	EXPECT_FALSE(GetEntry(Menu, 1).Execute());
	Click(Button);
	Click(Find<SCheckBox>(Menu, TEXT("SCheckBox"))[0]);
	EXPECT_FALSE(bIsOn);
	bIsPlugged = true;
	EXPECT_TRUE(Button->IsEnabled());
	Click(Button);
	EXPECT_TRUE(bIsOn);
}

TEST_F(FMenuBuilderTest, DisablesEntriesWithoutActionOrList)
{
	FMenuBuilder Unmapped(true, List);
	Unmapped.AddMenuEntry(Commands().Keyed);
	FMenuBuilder Listless(true, nullptr);
	Listless.AddMenuEntry(Commands().Light);
	bIsOn = true;
	for (const TSharedRef<SWidget>& Menu : {Unmapped.MakeWidget(), Listless.MakeWidget()})
	{
		EXPECT_FALSE(GetEntry(Menu, 0).CanExecute());
		EXPECT_FALSE(GetEntry(Menu, 0).Execute());
		EXPECT_EQ(GetEntry(Menu, 0).GetCheckState(), ECheckBoxState::Unchecked);
		EXPECT_FALSE(Find<SButton>(Menu, TEXT("SButton"))[0]->IsEnabled());
	}
	EXPECT_TRUE(bIsOn);
}

TEST_F(FMenuBuilderTest, PassesOnHowTheMenuIsToBeShown)
{
	const FSlateStyleSet Style("MenuStyle");
	FMenuBuilder Own(false, List, TSharedPtr<FExtender>(), false, &Style, false, NAME_None);
	const TSharedRef<const FMultiBox> OwnModel = GetModel(Own.MakeWidget(nullptr, 250));
	EXPECT_FALSE(OwnModel->bShouldCloseWindowAfterMenuSelection);
	EXPECT_FALSE(OwnModel->bIsSearchable);
	EXPECT_EQ(OwnModel->StyleSet, &Style);
	EXPECT_EQ(OwnModel->MaxHeight, 250u);
	const TSharedRef<const FMultiBox> Model = GetModel(MakeMenu());
	EXPECT_TRUE(Model->bShouldCloseWindowAfterMenuSelection);
	EXPECT_TRUE(Model->bIsSearchable);
	EXPECT_EQ(Model->StyleSet, &FCoreStyle::Get());
	EXPECT_EQ(Model->MaxHeight, 1000u);
}

TEST_F(FMenuBuilderTest, IsNoHigherThanItsGreatestHeight)
{
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open);
	Builder.AddMenuEntry(Commands().Open);
	const TSharedRef<SWidget> High = Builder.MakeWidget();
	const TSharedRef<SWidget> Low = Builder.MakeWidget(nullptr, 10);
	High->SlatePrepass(1.0f);
	Low->SlatePrepass(1.0f);
	EXPECT_GT(High->GetDesiredSize().Y, 20.0f);
	EXPECT_LT(High->GetDesiredSize().Y, 100.0f);
	EXPECT_FLOAT_EQ(Low->GetDesiredSize().Y, 10.0f);
}

TEST_F(FMenuBuilderTest, LeavesAMenuAloneThatItHasMade)
{
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Commands().Open);
	const TSharedRef<SWidget> First = Builder.MakeWidget(nullptr, 100);
	Builder.AddMenuEntry(Commands().Light);
	const TSharedRef<SWidget> Second = Builder.MakeWidget(nullptr, 200);
	EXPECT_EQ(GetModel(First)->Sections[0].Blocks.Num(), 1);
	EXPECT_EQ(GetModel(First)->MaxHeight, 100u);
	EXPECT_EQ(GetModel(Second)->Sections[0].Blocks.Num(), 2);
}

TEST_F(FMenuBuilderTest, MakesMenusThatKnowNothingOfEachOtherButShowOneState)
{
	TSharedPtr<SWidget> First = MakeMenu();
	const TSharedRef<SWidget> Second = MakeMenu();
	EXPECT_FALSE(First == Second);
	Click(Find<SButton>(First.ToSharedRef(), TEXT("SButton"))[1]);
	EXPECT_TRUE(Find<SCheckBox>(Second, TEXT("SCheckBox"))[0]->IsChecked());
	First.Reset();
	Click(Find<SButton>(Second, TEXT("SButton"))[1]);
	EXPECT_FALSE(bIsOn);
}

TEST_F(FMenuBuilderTest, MakesWidgetsThatOutliveMenuAndBuilderAndCommandContext)
{
	TSharedPtr<SButton> Button;
	{
		const TSharedRef<SWidget> Menu = MakeMenu();
		Button = Find<SButton>(Menu, TEXT("SButton"))[0];
	}
	FTestCommands::Unregister();
	Click(Button.ToSharedRef());
	EXPECT_EQ(Opened, 1);
}
