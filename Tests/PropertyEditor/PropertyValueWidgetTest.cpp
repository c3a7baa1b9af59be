// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

#include "Editor.h"
#include "EditorStyleSet.h"
#include "Framework/Application/SlateApplication.h"
#include "Standalone/SPropertyNameWidget.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** A panel whose value widgets a user works with. */
	struct FWidgetPanel : FTestPanel
	{
		FWidgetPanel() : A(Make<UPanelObject>(TEXT("A"))), B(Make<UPanelObject>(TEXT("B"))) { Show({&A}); }

		TSharedRef<SEditableTextBox> Box(const TCHAR* Path) const
		{
			return StaticCastSharedRef<SEditableTextBox>(ValueWidget(Path));
		}
		TSharedRef<SCheckBox> CheckBox(const TCHAR* Path) const
		{
			return StaticCastSharedRef<SCheckBox>(ValueWidget(Path));
		}
		static void Focus(const TSharedRef<SWidget>& Widget) { FSlateApplication::Get().SetKeyboardFocus(Widget); }
		static void Leave() { FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::Mouse); }
		static void Press(const FKey& Key)
		{
			const FKeyEvent Event(Key, FModifierKeysState(), 0, false, 0, 0);
			FSlateApplication::Get().ProcessKeyDownEvent(Event);
			FSlateApplication::Get().ProcessKeyUpEvent(Event);
		}
		/** Replaces what the focused box shows. */
		static void Type(const TSharedRef<SEditableTextBox>& Typed, const TCHAR* Text)
		{
			Typed->SelectAllText();
			for (const TCHAR* Unit = Text; *Unit; ++Unit)
			{
				FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(*Unit, FModifierKeysState(), 0, false));
			}
		}
		/** Enters a text into a new widget. @return what it shows then. */
		std::string Enter(const TCHAR* Path, const TCHAR* Text) const
		{
			const TSharedRef<SEditableTextBox> Entered = Box(Path);
			Focus(Entered);
			Type(Entered, Text);
			Press(EKeys::Enter);
			return TextOf(Entered);
		}

		UPanelObject& A;
		UPanelObject& B;
	};
}

TEST(SPropertyNameWidget, ShowsTheNameOrWhatIsGivenInItsPlace)
{
	FWidgetPanel Panel;
	const TSharedRef<const IPropertyHandle> Handle = Panel.Handle(TEXT("Numbers"));
	const TSharedRef<SWidget> Name = Handle->CreatePropertyNameWidget();
	ASSERT_EQ(Name->GetType(), "SPropertyNameWidget");
	EXPECT_EQ(FTestPanel::TextOf(Name), "How many?");
	EXPECT_EQ(StaticCastSharedRef<SPropertyNameWidget>(Name)->GetPropertyHandle(), Handle);
	const TSharedRef<STextBlock> Text = StaticCastSharedRef<STextBlock>(Name->GetChildren()->GetChildAt(0));
	EXPECT_TRUE(Text->GetFont() == FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"));
	EXPECT_EQ(FTestPanel::TextOf(Handle->CreatePropertyNameWidget(FText::FromString(TEXT("Mine")))), "Mine");
	EXPECT_EQ(
		FTestPanel::TextOf(Handle->CreatePropertyNameWidget(FText::GetEmpty(), FText::GetEmpty(), false, false)), "");
	EXPECT_EQ(FTestPanel::TextOf(SNew(SPropertyNameWidget).Text(FText::FromString(TEXT("Free")))), "Free");
}

TEST(IPropertyHandle, ShowsHowMuchIsBelow)
{
	FWidgetPanel Panel;
	const TSharedRef<STextBlock> Struct = StaticCastSharedRef<STextBlock>(Panel.ValueWidget(TEXT("Line")));
	const TSharedRef<STextBlock> Array = StaticCastSharedRef<STextBlock>(Panel.ValueWidget(TEXT("Numbers")));
	EXPECT_EQ(FTestPanel::TextOf(Struct), "3 members");
	EXPECT_TRUE(Struct->GetFont() == FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"));
	EXPECT_EQ(FTestPanel::TextOf(Array), "0 Array elements");
	Panel.A.Numbers.SetNum(1234);
	EXPECT_EQ(FTestPanel::TextOf(Array), "1,234 Array elements");
}

TEST(IPropertyHandle, HasACheckBoxForABool)
{
	FWidgetPanel Panel;
	const TSharedRef<SCheckBox> CheckBox = Panel.CheckBox(TEXT("bShown"));
	EXPECT_EQ(CheckBox->GetType(), "SCheckBox");
	EXPECT_EQ(CheckBox->GetCheckedState(), ECheckBoxState::Checked);
	FWidgetPanel::Focus(CheckBox);
	FWidgetPanel::Press(EKeys::SpaceBar);
	EXPECT_FALSE(Panel.A.bShown);
	EXPECT_EQ(CheckBox->GetCheckedState(), ECheckBoxState::Unchecked);
	GEditor->UndoTransaction();
	EXPECT_EQ(CheckBox->GetCheckedState(), ECheckBoxState::Checked);
}

TEST(IPropertyHandle, HasAnUndeterminedCheckBoxForBoolsThatDiffer)
{
	FWidgetPanel Panel;
	Panel.B.bShown = false;
	Panel.Show({&Panel.A, &Panel.B});
	const TSharedRef<SCheckBox> CheckBox = Panel.CheckBox(TEXT("bShown"));
	EXPECT_EQ(CheckBox->GetCheckedState(), ECheckBoxState::Undetermined);
	FWidgetPanel::Focus(CheckBox);
	FWidgetPanel::Press(EKeys::SpaceBar);
	EXPECT_TRUE(Panel.A.bShown && Panel.B.bShown);
	EXPECT_EQ(CheckBox->GetCheckedState(), ECheckBoxState::Checked);
	FWidgetPanel::Press(EKeys::SpaceBar);
	EXPECT_FALSE(Panel.A.bShown || Panel.B.bShown);
	EXPECT_EQ(Panel.CountUndoSteps(), 2);
}

TEST(IPropertyHandle, TakesWhatIsTypedIntoABoxOfEachType)
{
	FWidgetPanel Panel;
	EXPECT_EQ(Panel.Enter(TEXT("Count"), TEXT("12")), "12");
	EXPECT_EQ(Panel.A.Count, 12);
	EXPECT_EQ(Panel.Enter(TEXT("Ratio"), TEXT("1.50")), "1.5");
	EXPECT_EQ(Panel.A.Ratio, 1.5f);
	EXPECT_EQ(Panel.Enter(TEXT("Text"), TEXT("so")), "so");
	EXPECT_EQ(Panel.Enter(TEXT("Word"), TEXT("W_1")), "W_1");
	EXPECT_EQ(Panel.A.Word, "W_1");
	EXPECT_EQ(Panel.Enter(TEXT("Title"), TEXT("T")), "T");
	EXPECT_EQ(Panel.Enter(TEXT("Partner"), TEXT("/Game/Panel.B")), "/Game/Panel.B");
	EXPECT_EQ(Panel.A.Partner, &Panel.B);
	EXPECT_EQ(Panel.CountUndoSteps(), 6);
	EXPECT_TRUE(Panel.Box(TEXT("Text"))->GetFont() == FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"));
}

TEST(IPropertyHandle, GoesBackToTheValueAfterARefusedText)
{
	FWidgetPanel Panel;
	EXPECT_EQ(Panel.Enter(TEXT("Count"), TEXT("twelve")), "3");
	EXPECT_EQ(Panel.Enter(TEXT("Ratio"), TEXT("inf")), "0.25");
	EXPECT_EQ(Panel.Enter(TEXT("Partner"), TEXT("/Game/Nobody")), "None");
	EXPECT_TRUE(UPanelObject::Heard.empty());
	// Of those that differ as well.
	Panel.B.Count = 4;
	Panel.Show({&Panel.A, &Panel.B});
	EXPECT_EQ(Panel.Enter(TEXT("Count"), TEXT("x")), "Multiple Values");
	EXPECT_EQ(Panel.Enter(TEXT("Count"), TEXT("6")), "6");
	EXPECT_EQ(Panel.A.Count + Panel.B.Count, 12);
}

TEST(IPropertyHandle, WritesNothingUnlessTheUserChangesTheText)
{
	FWidgetPanel Panel;
	Panel.B.Text = TEXT("b");
	Panel.Show({&Panel.A, &Panel.B});
	for (const TCHAR* Path : {TEXT("Text"), TEXT("Count")})
	{
		const TSharedRef<SEditableTextBox> Untouched = Panel.Box(Path);
		FWidgetPanel::Focus(Untouched);
		FWidgetPanel::Leave();
		FWidgetPanel::Focus(Untouched);
		FWidgetPanel::Press(EKeys::Enter);
	}
	EXPECT_EQ(FTestPanel::TextOf(Panel.Box(TEXT("Text"))), "Multiple Values");
	const FText Mixed = Panel.Box(TEXT("Text"))->GetText();
	EXPECT_TRUE(FTextInspector::GetNamespace(Mixed).GetValue().Equals(TEXT("PropertyEditor")));
	EXPECT_TRUE(UPanelObject::Heard.empty());
	// What is typed counts when the focus leaves, and letter case does.
	const TSharedRef<SEditableTextBox> Box = Panel.Box(TEXT("Text"));
	FWidgetPanel::Focus(Box);
	FWidgetPanel::Type(Box, TEXT("B"));
	EXPECT_TRUE(UPanelObject::Heard.empty());
	FWidgetPanel::Leave();
	EXPECT_TRUE(Panel.A.Text.Equals(TEXT("B")) && Panel.B.Text.Equals(TEXT("B")));
}

TEST(IPropertyHandle, ShowsTheValueOfTheMomentInABox)
{
	FWidgetPanel Panel;
	const TSharedRef<SEditableTextBox> Box = Panel.Box(TEXT("Count"));
	Panel.Handle(TEXT("Count"))->SetValue(5);
	EXPECT_EQ(FTestPanel::TextOf(Box), "5");
	GEditor->UndoTransaction();
	EXPECT_EQ(FTestPanel::TextOf(Box), "3");
	// But for what the user is typing.
	FWidgetPanel::Focus(Box);
	FWidgetPanel::Type(Box, TEXT("44"));
	Panel.A.Count = 6;
	EXPECT_EQ(FTestPanel::TextOf(Box), "44");
	FWidgetPanel::Leave();
	EXPECT_EQ(Panel.A.Count, 44);
}

TEST(IPropertyHandle, HasDisabledWidgetsForWhatIsReadOnly)
{
	FWidgetPanel Panel;
	EXPECT_FALSE(Panel.ValueWidget(TEXT("bFixed"))->IsEnabled());
	EXPECT_FALSE(Panel.ValueWidget(TEXT("Fixed.X"))->IsEnabled());
	EXPECT_TRUE(Panel.ValueWidget(TEXT("bShown"))->IsEnabled());
	EXPECT_TRUE(Panel.ValueWidget(TEXT("Line.From.X"))->IsEnabled());
}

TEST(IPropertyHandle, HasWidgetsThatOutliveTheRowsAndDoNothingThen)
{
	FWidgetPanel Panel;
	const TSharedRef<SEditableTextBox> Box = Panel.Box(TEXT("Count"));
	const TSharedRef<SCheckBox> CheckBox = Panel.CheckBox(TEXT("bShown"));
	FWidgetPanel::Focus(Box);
	FWidgetPanel::Type(Box, TEXT("8"));
	Panel.Show({});
	FWidgetPanel::Focus(CheckBox);
	FWidgetPanel::Press(EKeys::SpaceBar);
	EXPECT_EQ(Panel.A.Count, 3);
	EXPECT_TRUE(Panel.A.bShown);
	EXPECT_EQ(FTestPanel::TextOf(Box), "");
}
