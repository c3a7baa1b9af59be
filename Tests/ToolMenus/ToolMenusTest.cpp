// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Standalone/ToolMenusStartup.h"
#include "ToolMenus.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/SNullWidget.h"

namespace
{
	const FName Bar = "LevelEditor.LevelEditorToolBar";

	/** Ends with what the test did not end itself. */
	class UToolMenusTest : public ::testing::Test
	{
	protected:
		void TearDown() override
		{
			FToolMenusStartup::ShutDown();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	};

	FToolMenuEntry MakeEntry(const FName Name, const TCHAR* Label = TEXT("Label"))
	{
		return FToolMenuEntry::InitComboButton(Name, FUIAction(), FOnGetContent(), FText::FromString(Label));
	}

	FToolMenuSection& Section(const FName Name = "Settings")
	{
		return UToolMenus::Get()->ExtendMenu(Bar)->FindOrAddSection(Name);
	}

	std::vector<std::string> EntryNames(const FName SectionName = "Settings")
	{
		std::vector<std::string> Names;
		for (const FToolMenuEntry& Entry : Section(SectionName).Blocks)
		{
			Names.push_back(TCHAR_TO_UTF8(Entry.Name.ToString()));
		}
		return Names;
	}

	/** An object on whose behalf things are registered, and what was called of it. */
	struct FExtender
	{
		void Extend() { ++Calls; }
		TSharedRef<SWidget> MakeMenu(TSharedPtr<int32> Payload)
		{
			LastPayload = Payload;
			return SNullWidget::NullWidget;
		}
		FSimpleDelegate Bind() { return FSimpleDelegate::CreateRaw(this, &FExtender::Extend); }

		int32 Calls = 0;
		TSharedPtr<int32> LastPayload;
	};
}

TEST_F(UToolMenusTest, IsOneObjectThatTheCollectorKeeps)
{
	const TWeakObjectPtr<UToolMenus> Menus = UToolMenus::Get();
	const TWeakObjectPtr<UToolMenu> Menu = Menus->ExtendMenu(Bar);
	Section().AddEntry(MakeEntry("Corvane"));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	ASSERT_TRUE(Menus.IsValid());
	EXPECT_EQ(UToolMenus::Get(), Menus.Get());
	EXPECT_EQ(UToolMenus::Get()->FindMenu(Bar), Menu.Get());
	EXPECT_EQ(EntryNames(), std::vector<std::string>{"Corvane"});
}

TEST_F(UToolMenusTest, FindsOnlyMenusThatSomebodyExtended)
{
	EXPECT_EQ(UToolMenus::Get()->FindMenu(Bar), nullptr);
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu(Bar);
	EXPECT_EQ(Menu->MenuName, Bar);
	EXPECT_EQ(UToolMenus::Get()->ExtendMenu(Bar), Menu);
	EXPECT_NE(UToolMenus::Get()->ExtendMenu("LevelEditor.MainMenu"), Menu);
	EXPECT_EQ(UToolMenus::Get()->FindMenu("LEVELEDITOR.leveleditortoolbar"), Menu);
}

TEST_F(UToolMenusTest, ListsSectionsInTheOrderInWhichTheyWereAdded)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu(Bar);
	EXPECT_EQ(Menu->FindSection("Settings"), nullptr);
	Menu->FindOrAddSection("Settings");
	Menu->FindOrAddSection("Apps");
	Menu->FindOrAddSection("Settings");
	ASSERT_EQ(Menu->Sections.Num(), 2);
	EXPECT_EQ(Menu->Sections[0].Name, FName("Settings"));
	EXPECT_EQ(Menu->FindSection("Apps"), &Menu->Sections[1]);
}

TEST_F(UToolMenusTest, KeepsEveryPartOfAComboButton)
{
	FExtender Extender;
	const TSharedPtr<int32> Payload = MakeShared<int32>(7);
	bool bUsable = false;
	const FUIAction Action(FExecuteAction(), FCanExecuteAction::CreateLambda([&bUsable] { return bUsable; }));
	FText ToolTip = FText::FromString(TEXT("old"));
	const auto GetToolTip = TAttribute<FText>::FGetter::CreateLambda([&ToolTip] { return ToolTip; });
	FToolMenuEntry Args = FToolMenuEntry::InitComboButton("Corvane", Action,
		FOnGetContent::CreateRaw(&Extender, &FExtender::MakeMenu, Payload), FText::FromString(TEXT("Label")),
		TAttribute<FText>::Create(GetToolTip), FSlateIcon("Style", "Brush"), true, "Highlight");
	const FToolMenuEntry& Entry = Section().AddEntry(Args);
	EXPECT_EQ(Section().FindEntry("Corvane"), &Entry);
	EXPECT_EQ(Entry.Type, EMultiBlockType::ToolBarComboButton);
	EXPECT_EQ(Entry.TutorialHighlightName, FName("Highlight"));
	EXPECT_STREQ(TCHAR_TO_UTF8(Entry.Label.Get().ToString()), "Label");
	ToolTip = FText::FromString(TEXT("new"));
	EXPECT_STREQ(TCHAR_TO_UTF8(Entry.ToolTip.Get().ToString()), "new");
	EXPECT_EQ(Entry.Icon.Get().GetStyleName(), FName("Brush"));
	EXPECT_TRUE(Entry.ToolBarData.bSimpleComboBox);
	ASSERT_NE(Entry.Action.GetUIAction(), nullptr);
	EXPECT_FALSE(Entry.Action.GetUIAction()->CanExecute());
	bUsable = true;
	EXPECT_TRUE(Entry.Action.GetUIAction()->CanExecute());
	const FNewToolMenuChoice& Content = Entry.ToolBarData.ComboButtonContextMenuGenerator;
	EXPECT_EQ(Content.OnGetContent.Execute(), SNullWidget::NullWidget);
	EXPECT_EQ(Extender.LastPayload, Payload);
}

TEST_F(UToolMenusTest, LeavesWhatAComboButtonWasNotGivenUnset)
{
	const FToolMenuEntry Entry = FToolMenuEntry::InitComboButton("Plain", FToolUIActionChoice(), FNewToolMenuChoice());
	EXPECT_EQ(Entry.Action.GetUIAction(), nullptr);
	EXPECT_FALSE(Entry.ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.IsBound());
	EXPECT_FALSE(Entry.Label.IsSet() || Entry.ToolTip.IsSet() || Entry.Icon.IsSet());
	EXPECT_FALSE(Entry.ToolBarData.bSimpleComboBox);
	EXPECT_TRUE(Entry.TutorialHighlightName.IsNone());
	EXPECT_FALSE(Entry.Owner.IsSet());
	EXPECT_EQ(FToolMenuEntry().Type, EMultiBlockType::None);
}

TEST_F(UToolMenusTest, ReplacesAnEntryOfTheSameNameInItsPlace)
{
	Section().AddEntry(MakeEntry("First"));
	Section().AddEntry(MakeEntry("Second"));
	Section().AddEntry(MakeEntry("FIRST", TEXT("New")));
	EXPECT_EQ(EntryNames(), (std::vector<std::string>{"FIRST", "Second"}));
	EXPECT_STREQ(TCHAR_TO_UTF8(Section().FindEntry("First")->Label.Get().ToString()), "New");
	EXPECT_EQ(Section().FindEntry("Third"), nullptr);
}

TEST_F(UToolMenusTest, KeepsAllEntriesWithoutName)
{
	Section().AddEntry(MakeEntry(NAME_None));
	Section().AddEntry(MakeEntry(NAME_None));
	EXPECT_EQ(Section().Blocks.Num(), 2);
}

TEST_F(UToolMenusTest, GivesNewEntriesToTheInnermostOwner)
{
	FExtender Extender;
	{
		const FToolMenuOwnerScoped Outer(&Extender);
		Section().AddEntry(MakeEntry("A"));
		{
			const FToolMenuOwnerScoped Inner("Inner");
			Section().AddEntry(MakeEntry("B"));
		}
		Section().AddEntry(MakeEntry("C"));
	}
	Section().AddEntry(MakeEntry("D"));
	EXPECT_EQ(Section().FindEntry("A")->Owner, FToolMenuOwner(&Extender));
	EXPECT_EQ(Section().FindEntry("B")->Owner, FToolMenuOwner(TEXT("inner")));
	EXPECT_EQ(Section().FindEntry("C")->Owner, FToolMenuOwner(&Extender));
	EXPECT_FALSE(Section().FindEntry("D")->Owner.IsSet());
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 2);
}

TEST_F(UToolMenusTest, KeepsEveryPartOfAToolBarButton)
{
	int32 Pressed = 0;
	const FToolMenuOwnerScoped Owner("Somebody");
	const FToolMenuEntry Entry = FToolMenuEntry::InitToolBarButton("Save",
		FUIAction(FExecuteAction::CreateLambda([&Pressed] { ++Pressed; })), FText::FromString(TEXT("Label")),
		FText::FromString(TEXT("Tip")), FSlateIcon("Style", "Brush"), "Highlight");
	EXPECT_EQ(Entry.Name, FName("Save"));
	EXPECT_EQ(Entry.Owner, FToolMenuOwner("Somebody"));
	EXPECT_EQ(Entry.Type, EMultiBlockType::ToolBarButton);
	EXPECT_EQ(Entry.TutorialHighlightName, FName("Highlight"));
	EXPECT_STREQ(TCHAR_TO_UTF8(Entry.Label.Get().ToString()), "Label");
	EXPECT_STREQ(TCHAR_TO_UTF8(Entry.ToolTip.Get().ToString()), "Tip");
	EXPECT_EQ(Entry.Icon.Get().GetStyleName(), FName("Brush"));
	EXPECT_FALSE(Entry.ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.IsBound());
	ASSERT_NE(Entry.Action.GetUIAction(), nullptr);
	EXPECT_TRUE(Entry.Action.GetUIAction()->Execute());
	EXPECT_EQ(Pressed, 1);
}

TEST_F(UToolMenusTest, CountsOwnersApartFromOne)
{
	for (const char* Name : {"First", "Second"})
	{
		const FToolMenuOwnerScoped Owner(Name);
		Section().AddEntry(MakeEntry(Name));
	}
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 2);
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount("First"), 1);
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount("Third"), 2);
}

TEST_F(UToolMenusTest, RemovesAllEntriesOfAnOwnerAndNoOthers)
{
	FExtender Extender;
	FExtender Other;
	{
		const FToolMenuOwnerScoped Owner(&Extender);
		Section().AddEntry(MakeEntry("A"));
		Section("Apps").AddEntry(MakeEntry("B"));
		UToolMenus::Get()->ExtendMenu("Second")->FindOrAddSection("S").AddEntry(MakeEntry("C"));
	}
	{
		const FToolMenuOwnerScoped Owner(&Other);
		Section().AddEntry(MakeEntry("D"));
	}
	Section().AddEntry(MakeEntry("E"));
	UToolMenus::UnregisterOwner(&Extender);
	EXPECT_EQ(EntryNames(), (std::vector<std::string>{"D", "E"}));
	EXPECT_EQ(EntryNames("Apps"), std::vector<std::string>());
	EXPECT_EQ(UToolMenus::Get()->FindMenu("Second")->Sections[0].Blocks.Num(), 0);
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 1);
	UToolMenus::UnregisterOwner(FToolMenuOwner());
	EXPECT_EQ(EntryNames(), (std::vector<std::string>{"D", "E"}));
}

TEST_F(UToolMenusTest, UnregistersAnOwnerWithoutMakingAnything)
{
	FExtender Extender;
	const auto CountObjects = []
	{
		TArray<UObject*> Objects;
		GetObjectsWithOuter(GetTransientPackage(), Objects);
		return Objects.Num();
	};
	const int32 Before = CountObjects();
	UToolMenus::UnregisterOwner(&Extender);
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 0);
	EXPECT_EQ(CountObjects(), Before);
	UToolMenus::Get();
	FToolMenusStartup::ShutDown();
	UToolMenus::UnregisterOwner(&Extender);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(CountObjects(), Before);
}

TEST_F(UToolMenusTest, RunsCallbacksOnceItIsUpTheLastFirst)
{
	std::string Order;
	UToolMenus::RegisterStartupCallback(FSimpleDelegate::CreateLambda([&Order] { Order += '1'; }));
	UToolMenus::RegisterStartupCallback(FSimpleDelegate::CreateLambda([&Order] { Order += '2'; }));
	EXPECT_EQ(Order, "");
	EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 2);
	FToolMenusStartup::Run();
	EXPECT_EQ(Order, "21");
	EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 0);
}

TEST_F(UToolMenusTest, RunsACallbackAtOnceWhenItIsUpAndKeepsItNot)
{
	FToolMenusStartup::Run();
	FExtender Extender;
	EXPECT_FALSE(UToolMenus::RegisterStartupCallback(Extender.Bind()).IsValid());
	EXPECT_EQ(Extender.Calls, 1);
	EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 0);
}

TEST_F(UToolMenusTest, RunsACallbackThatACallbackRegisters)
{
	FExtender Extender;
	UToolMenus::RegisterStartupCallback(
		FSimpleDelegate::CreateLambda([&Extender] { UToolMenus::RegisterStartupCallback(Extender.Bind()); }));
	FToolMenusStartup::Run();
	EXPECT_EQ(Extender.Calls, 1);
}

TEST_F(UToolMenusTest, RunsNoCallbackThatWasUnregistered)
{
	FExtender Gone;
	FExtender Kept;
	UToolMenus::RegisterStartupCallback(Gone.Bind());
	UToolMenus::RegisterStartupCallback(Kept.Bind());
	UToolMenus::RegisterStartupCallback(Gone.Bind());
	const FDelegateHandle Handle = UToolMenus::RegisterStartupCallback(Kept.Bind());
	EXPECT_TRUE(Handle.IsValid());
	UToolMenus::UnRegisterStartupCallback(&Gone);
	UToolMenus::UnRegisterStartupCallback(Handle);
	UToolMenus::UnRegisterStartupCallback(FDelegateHandle());
	EXPECT_EQ(FToolMenusStartup::GetStartupCallbackCount(), 1);
	FToolMenusStartup::Run();
	EXPECT_EQ(Gone.Calls, 0);
	EXPECT_EQ(Kept.Calls, 1);
}

TEST_F(UToolMenusTest, SkipsACallbackThatAnEarlierOneUnregistered)
{
	FExtender Extender;
	UToolMenus::RegisterStartupCallback(Extender.Bind());
	UToolMenus::RegisterStartupCallback(
		FSimpleDelegate::CreateLambda([&Extender] { UToolMenus::UnRegisterStartupCallback(&Extender); }));
	FToolMenusStartup::Run();
	EXPECT_EQ(Extender.Calls, 0);
}

TEST_F(UToolMenusTest, ForgetsWhatWaitsAtShutDown)
{
	FExtender Extender;
	UToolMenus::RegisterStartupCallback(Extender.Bind());
	FToolMenusStartup::ShutDown();
	FToolMenusStartup::Run();
	EXPECT_EQ(Extender.Calls, 0);
}

TEST_F(UToolMenusTest, SurvivesAScopeThatItEndsIn)
{
	const FToolMenuOwnerScoped Owner("Somebody");
	FToolMenusStartup::ShutDown();
	EXPECT_FALSE(UToolMenus::Get()->CurrentOwner().IsSet());
	FToolMenusStartup::ShutDown();
}

TEST_F(UToolMenusTest, LeavesNothingBehindAfterAThousandStarts)
{
	const TWeakObjectPtr<UToolMenus> First = UToolMenus::Get();
	const uint32 Place = First->GetUniqueID();
	const TSharedPtr<int32> Payload = MakeShared<int32>(0);
	FExtender Extender;
	for (int32 Round = 0; Round < 1000; ++Round)
	{
		FToolMenusStartup::Run();
		Section().AddEntry(FToolMenuEntry::InitComboButton(
			"Corvane", FUIAction(), FOnGetContent::CreateRaw(&Extender, &FExtender::MakeMenu, Payload)));
		EXPECT_EQ(UToolMenus::Get()->FindMenu(Bar)->Sections[0].Blocks.Num(), 1);
		FToolMenusStartup::ShutDown();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	EXPECT_FALSE(First.IsValid());
	EXPECT_TRUE(Payload.IsUnique());
	// The table of objects gives freed places away again.
	EXPECT_LE(UToolMenus::Get()->GetUniqueID(), Place + 1);
}

TEST_F(UToolMenusTest, EndsTheProgramOverASecondStartAndAForeignPop)
{
	FToolMenusStartup::Run();
	EXPECT_EXIT(FToolMenusStartup::Run(), ::testing::ExitedWithCode(3), "Assertion failed: !bMenusCanBeExtended");
	const FToolMenuOwnerScoped Owner("Somebody");
	EXPECT_EXIT(UToolMenus::Get()->PopOwner("Another"), ::testing::ExitedWithCode(3), "Assertion failed");
}
