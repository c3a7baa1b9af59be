// Copyright Corvane. MIT License.
#include "DetailsFixture.h"

#include "AllocationCount.h"

#include "DetailCustomisations/ActiveSenderNameOptions.h"
#include "DetailCustomisations/ActiveSenderNamesCustomisation.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "EditorStyleSet.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailCustomization.h"
#include "IPropertyRowGenerator.h"
#include "Layout/Children.h"
#include "OddReceivers.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "Standalone/TextFormatInspector.h"
#include "UObject/Package.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"
#include "ZAVSpoutReceiverManager.h"

// What a real editor does not tell of the receivers' rows, and what it can't stage.

namespace
{
	const TCHAR* const FirstEntry = TEXT("Use first available sender");

	bool HasPropertyFont(const STextBlock& Text)
	{
		return Text.GetFont() == FEditorStyle::GetFontStyle("PropertyWindow.NormalFont");
	}

	/** The padding of a widget's first slot. */
	FMargin PaddingWithin(const TSharedPtr<SWidget>& Widget)
	{
		return Widget->GetChildren()->GetSlotAt(0).AsAligned()->SlotPadding.Get();
	}

	int32 CountHandlers()
	{
		return FActiveSenderNameOptions::Get().OnLostStateChanged.GetBindingCount();
	}
}

class FSenderRows : public FDetailsFixture
{
protected:
	std::string GetOptions() const
	{
		std::string Texts;
		for (const TSharedPtr<FString>& Option : FActiveSenderNameOptions::Get().Options)
		{
			Texts += TCHAR_TO_UTF8(*Option);
			Texts += "; ";
		}
		return Texts;
	}
	const FDetailsRows::FRow& GetHeader(const FDetailsRows& Rows) const
	{
		for (const FDetailsRows::FRow& Row : Rows.GetAll())
		{
			if (FDetailsRows::Find(Row.Widgets.ValueWidget, "SOverlay"))
			{
				return Row;
			}
		}
		ADD_FAILURE() << "no header";
		std::abort();
	}
};

TEST_F(FSenderRows, GiveTheHeaderItsPlaceWidthsAndFont)
{
	const FDetailsRows Rows({&SpawnReceiver(true, TEXT(""))});
	const FNodeWidgets& Header = GetHeader(Rows).Widgets;
	EXPECT_EQ(Header.ValueWidgetLayoutData.VerticalAlignment, VAlign_Bottom);
	EXPECT_EQ(Header.ValueWidgetLayoutData.MinWidth.Get(0.0F), 130.0F);
	EXPECT_EQ(Header.ValueWidgetLayoutData.MaxWidth.Get(0.0F), 500.0F);
	EXPECT_EQ(Header.ValueWidget->GetType(), FName("SOverlay"));
	EXPECT_EQ(Header.ValueWidget->GetChildren()->Num(), 1);
	EXPECT_TRUE(PaddingWithin(Header.ValueWidget) == FMargin(0.0F, 4.0F, 5.0F, 0.0F));
	EXPECT_TRUE(HasPropertyFont(FDetailsRows::GetTextBlock(Header.ValueWidget)));
}

TEST_F(FSenderRows, FormatTheNumberOfMembersIntoATranslatedText)
{
	const FDetailsRows Rows({&SpawnReceiver(true, TEXT(""))});
	const FText Text = FDetailsRows::GetTextBlock(GetHeader(Rows).Widgets.ValueWidget).GetText();
	const FText* Pattern = FTextFormatInspector::GetPattern(Text);
	ASSERT_NE(Pattern, nullptr);
	EXPECT_TRUE(Pattern->IdenticalTo(NSLOCTEXT("PropertyEditor", "NumStructItems", "{0} members")));
	EXPECT_EQ(FDetailsRows::TextOf(GetHeader(Rows).Widgets.ValueWidget), "4 members");
}

TEST_F(FSenderRows, GiveTheNameItsWidthPaddingAndFont)
{
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("A"))});
	const FNodeWidgets& Name = Rows.GetSenderRow().Widgets;
	EXPECT_EQ(Name.ValueWidgetLayoutData.MinWidth.Get(0.0F), 250.0F);
	EXPECT_FALSE(Name.ValueWidgetLayoutData.MaxWidth.IsSet());
	EXPECT_EQ(Name.ValueWidget->GetType(), FName("SVerticalBox"));
	EXPECT_EQ(Name.ValueWidget->GetChildren()->Num(), 1);
	EXPECT_TRUE(PaddingWithin(Name.ValueWidget) == FMargin(0.0F, 2.0F, 0.0F, 2.0F));
	EXPECT_TRUE(PaddingWithin(Rows.GetDropDown().AsShared()) == FMargin(2.0F));
	EXPECT_EQ(Name.NameWidget->GetType(), FName("SPropertyNameWidget")) << "the property's own";
	EXPECT_EQ(Rows.GetSenderRow().Name, "Name");
}

TEST_F(FSenderRows, SetTheClosedTextOffByTwoUnitsEachSide)
{
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("A"))});
	const TSharedPtr<SWidget> Text = FDetailsRows::Find(Rows.GetSenderRow().Widgets.ValueWidget, "STextBlock");
	EXPECT_TRUE(HasPropertyFont(FDetailsRows::GetTextBlock(Text)));
	const TSharedRef<STextBlock> Plain = SNew(STextBlock)
											 .Font(FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"))
											 .Text(FDetailsRows::GetTextBlock(Text).GetText());
	Text->SlatePrepass(1.0F);
	Plain->SlatePrepass(1.0F);
	EXPECT_EQ(Text->GetDesiredSize().X, Plain->GetDesiredSize().X + 4.0F);
	EXPECT_EQ(Text->GetDesiredSize().Y, Plain->GetDesiredSize().Y);
}

TEST_F(FSenderRows, OfferTheSharedListItself)
{
	SetSenders({TEXT("A"), TEXT("two\nlines")});
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("abc"))});
	SComboButton& DropDown = Rows.GetDropDown();
	ASSERT_EQ(DropDown.GetNumOptions(), 4);
	const char* const Texts[] = {"Use first available sender", "A", "two\nlines", "abc"};
	for (int32 Index = 0; Index < 4; ++Index)
	{
		const TSharedRef<SWidget> Option = DropDown.GenerateOption(Index);
		EXPECT_EQ(Option->GetType(), FName("STextBlock"));
		EXPECT_EQ(FDetailsRows::TextOf(Option), Texts[Index]);
		EXPECT_FALSE(FTextInspector::GetKey(FDetailsRows::GetTextBlock(Option).GetText()).IsSet());
		EXPECT_TRUE(HasPropertyFont(FDetailsRows::GetTextBlock(Option)));
	}
	EXPECT_EQ(DropDown.GetSelectedOption(), 3);
	FActiveSenderNameOptions::Get().Options.RemoveAt(1);
	EXPECT_EQ(DropDown.GetNumOptions(), 3) << "no copy of it";
}

TEST_F(FSenderRows, OfferTheListAsItWasRefreshedLast)
{
	SetSenders({TEXT("A")});
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("A"))});
	SetSenders({TEXT("A"), TEXT("B")});
	Rows.GetDropDown().SetIsOpen(true);
	EXPECT_EQ(Rows.GetDropDown().GetNumOptions(), 2) << "opening alone changes nothing";
	Rows.GetLabel();
	EXPECT_EQ(Rows.GetDropDown().GetNumOptions(), 3);
}

TEST_F(FSenderRows, SelectAtFirstWhatIsStored)
{
	SetSenders({TEXT("A"), TEXT("B")});
	EXPECT_EQ(FDetailsRows({&SpawnReceiver(false, TEXT("B"))}).GetDropDown().GetSelectedOption(), 2);
	EXPECT_EQ(FDetailsRows({&SpawnReceiver(true, TEXT("B"))}).GetDropDown().GetSelectedOption(), 0);
}

TEST_F(FSenderRows, StoreWhatIsChosenHoweverItIsChosen)
{
	SetSenders({TEXT("A"), TEXT("B"), TEXT("C")});
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	const FDetailsRows Rows({&Manager});
	const ESelectInfo::Type Ways[] = {ESelectInfo::OnMouseClick, ESelectInfo::OnKeyPress, ESelectInfo::OnNavigation};
	for (int32 Index = 3; Index > 0; --Index)
	{
		Rows.GetDropDown().ChooseOption(Index, Ways[Index - 1]);
		EXPECT_TRUE(Manager.SpoutReceivers[0].Name.Equals(*FActiveSenderNameOptions::Get().Options[Index])) << Index;
		EXPECT_FALSE(Manager.SpoutReceivers[0].UseFirstAvailableSender);
	}
	Rows.GetDropDown().ChooseOption(0, ESelectInfo::Direct);
	EXPECT_TRUE(Manager.SpoutReceivers[0].UseFirstAvailableSender);
	EXPECT_TRUE(Manager.SpoutReceivers[0].Name.Equals(FirstEntry));
}

TEST_F(FSenderRows, StoreNothingWhenNothingIsChosen)
{
	SetSenders({TEXT("A")});
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	const FDetailsRows Rows({&Manager});
	int32 Changes = 0;
	Rows.GetGenerator().OnFinishedChangingProperties().AddLambda([&](const FPropertyChangedEvent&) { ++Changes; });
	static_cast<SComboBox<TSharedPtr<FString>>&>(Rows.GetDropDown()).ClearSelection();
	EXPECT_EQ(Changes, 0);
	EXPECT_TRUE(Manager.SpoutReceivers[0].Name.Equals(TEXT("A")));
}

TEST_F(FSenderRows, OpenWithoutAStepToUndoWhenNothingHadToChange)
{
	FDetailsRows({&SpawnReceiver(false, TEXT("A"))});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
	FDetailsRows({&SpawnReceiver(true, FirstEntry)});
	EXPECT_FALSE(GEditor->Trans->CanUndo());
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(true, TEXT("A"));
	FDetailsRows({&Manager});
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(Manager.SpoutReceivers[0].Name.Equals(TEXT("A")));
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FSenderRows, ShowALostNameThatEndsLikeTheMark)
{
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("abc [lost]"))});
	EXPECT_EQ(Rows.GetLabel(), "abc [lost] [lost]");
	SetSenders({TEXT("abc [lost]")});
	EXPECT_EQ(Rows.GetLabel(), "abc [lost]");
}

TEST_F(FSenderRows, ShowTheFirstEntryForAReceiverWhoseMarkAnotherOneSet)
{
	SetSenders({TEXT("A")});
	const FDetailsRows Lost({&SpawnReceiver(false, TEXT("abc"))});
	const FDetailsRows Found({&SpawnReceiver(false, TEXT("A"))});
	EXPECT_EQ(Lost.GetLabel(), "abc [lost]");
	EXPECT_EQ(Found.GetLabel(), "A");
	EXPECT_EQ(GetOptions(), "Use first available sender; A; ");
	EXPECT_EQ(Lost.GetLabel(), "abc [lost]") << "it is listed again";
	EXPECT_EQ(GetOptions(), "Use first available sender; A; abc; ");
}

TEST_F(FSenderRows, ShowTheMarkThatWasSetLast)
{
	SetSenders({TEXT("A")});
	FActiveSenderNameOptions& Options = FActiveSenderNameOptions::Get();
	// Subscribed before the row, so told after it: its own refresh is the last that the row hears of.
	bool bRefresh = false;
	const FDelegateHandle Handle = Options.OnLostStateChanged.AddLambda(
		[&](bool)
		{
			if (bRefresh)
			{
				bRefresh = false;
				Options.RefreshOptions(TEXT("gone"), false);
			}
		});
	const FDetailsRows Rows({&SpawnReceiver(false, TEXT("A"))});
	EXPECT_EQ(Rows.GetLabel(), "A");
	bRefresh = true;
	EXPECT_EQ(Rows.GetLabel(), "A [lost]");
	EXPECT_EQ(Rows.GetLabel(), "A");
	Options.OnLostStateChanged.Remove(Handle);
}

TEST_F(FSenderRows, UnsubscribeWithTheirPanel)
{
	EXPECT_EQ(CountHandlers(), 0);
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	Manager.SpoutReceivers.Add(Manager.SpoutReceivers[0]);
	{
		const FDetailsRows Rows({&Manager});
		EXPECT_EQ(CountHandlers(), 2);
	}
	EXPECT_EQ(CountHandlers(), 0);
	FActiveSenderNameOptions::Get().RefreshOptions(TEXT("A"), false);
}

TEST_F(FSenderRows, LeaveNobodySubscribedAfterTenThousandPanels)
{
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	SetSenders({TEXT("A")});
	for (int Panel = 0; Panel < 10000; ++Panel)
	{
		FDetailsRows({&Manager});
	}
	EXPECT_EQ(CountHandlers(), 0);
	EXPECT_FALSE(FActiveSenderNameOptions::Get().OnLostStateChanged.IsBound());
}

TEST_F(FSenderRows, MayBeDeletedWhileTheyAreBeingTold)
{
	typedef TSharedPtr<IPropertyTypeCustomization> FInstance;
	FActiveSenderNameOptions& Options = FActiveSenderNameOptions::Get();
	// The first one is told last; the others are gone by then, told or not.
	std::vector<FInstance> Instances;
	for (int Index = 0; Index < 3; ++Index)
	{
		Instances.push_back(FActiveSenderNamesCustomisation::MakeInstance());
	}
	const FDelegateHandle Handle = Options.OnLostStateChanged.AddLambda([&](bool) { Instances.clear(); });
	Instances.push_back(FActiveSenderNamesCustomisation::MakeInstance());
	EXPECT_EQ(CountHandlers(), 5);
	Options.RefreshOptions(TEXT("A"), false);
	EXPECT_EQ(CountHandlers(), 1);
	Options.OnLostStateChanged.Remove(Handle);
	EXPECT_EQ(CountHandlers(), 0);
}

TEST_F(FSenderRows, EachHaveALayoutOfTheirOwn)
{
	EXPECT_FALSE(FActiveSenderNamesCustomisation::MakeInstance() == FActiveSenderNamesCustomisation::MakeInstance());
	EXPECT_FALSE(FActiveSenderNamesCustomisation::MakeInstance()->ShouldInlineKey());
}

TEST_F(FSenderRows, TakeTheLastValueOfAPanelThatOutlivesItsRows)
{
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	SetSenders({TEXT("A")});
	const FDetailsRows Rows({&Manager});
	EXPECT_EQ(Rows.GetLabel(), "A");
	Manager.SpoutReceivers.Empty();
	EXPECT_TRUE(Rows.GetGenerator().RefreshIfOutdated());
	EXPECT_EQ(CountHandlers(), 0);
	EXPECT_EQ(Rows.GetLabel(), "A") << "nobody answers any more";
}

// A structure that lacks a member, or has it under another name, is a mistake that ends the editor.

class FSenderRowsDeathTest : public FSenderRows
{
protected:
	void ShowAs(const char* StructName)
	{
		GetPropertyEditor().RegisterCustomPropertyTypeLayout(StructName,
			FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FActiveSenderNamesCustomisation::MakeInstance));
		FDetailsRows({NewObject<UOddReceivers>(GetTransientPackage())});
	}
};

TEST_F(FSenderRowsDeathTest, NeedTheName)
{
	EXPECT_EXIT(ShowAs("ReceiverWithoutName"), ::testing::ExitedWithCode(3), "IsValid\\(\\)");
}

TEST_F(FSenderRowsDeathTest, NeedTheFlagOfTheReceiver)
{
	EXPECT_EXIT(ShowAs("ReceiverWithoutActive"), ::testing::ExitedWithCode(3), "IsValid\\(\\)");
}

TEST_F(FSenderRowsDeathTest, NeedTheTarget)
{
	EXPECT_EXIT(ShowAs("ReceiverWithoutTarget"), ::testing::ExitedWithCode(3), "IsValid\\(\\)");
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FSenderRows, KeepNoMemoryOfPanelsThatWereClosed)
{
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT("A"));
	SetSenders({TEXT("A")});
	const auto CountAfter = [&](int Panels)
	{
		for (int Panel = 0; Panel < Panels; ++Panel)
		{
			FDetailsRows({&Manager}).GetLabel();
		}
		return FAllocationCount::GetLive();
	};
	const int64 AfterTen = CountAfter(10);
	EXPECT_EQ(CountAfter(500), AfterTen);
}
#endif
