// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "SlateHost.h"
#include "WindowFixture.h"
#include "WindowText.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** A little page with one of each, and a record of what its widgets told. */
	class FSlateHostPage : public FWindowFixture
	{
	protected:
		FSlateHostPage()
		{
			Options = {MakeShared<FString>(TEXT("Main")), MakeShared<FString>(TEXT("Second"))};
			// clang-format off
			Root = SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Caption, STextBlock).Text(FText::FromString(TEXT("Name:")))]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Box, SEditableTextBox)
						.OnTextChanged_Lambda([this](const FText& Text) { Told.push_back("changed " + Read(Text)); })
						.OnTextCommitted_Lambda([this](const FText& Text, ETextCommit::Type Type)
						{
							Told.push_back("committed " + Read(Text) + " " + std::to_string(Type));
						})
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Button, SButton)
						.OnClicked_Lambda([this]() { Told.push_back("clicked"); return FReply::Handled(); })
						[
							SNew(STextBlock).Text(FText::FromString(TEXT("Create")))
						]
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Check, SCheckBox)
						.IsChecked_Lambda([this]() { return State; })
						.OnCheckStateChanged_Lambda([this](ECheckBoxState NewState)
						{
							Told.push_back("ticked");
							State = bRefuses ? State : NewState;
						})
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Combo, SComboBox<TSharedPtr<FString>>)
						.OptionsSource(&Options)
						.OnGenerateWidget_Lambda([](TSharedPtr<FString> Option)
						{
							return SNew(STextBlock).Text(FText::FromString(*Option));
						})
						.OnSelectionChanged_Lambda([this](TSharedPtr<FString> Option, ESelectInfo::Type)
						{
							Told.push_back("picked " + std::string(TCHAR_TO_UTF8(**Option)));
						})
						[
							SNew(STextBlock).Text(FText::FromString(TEXT("closed")))
						]
				];
			// clang-format on
			Host.SetRoot(Root);
			ShowPanel(Host, 300, 300);
			Frame(Host);
		}
		~FSlateHostPage() override { Host.SetRoot(nullptr); }

		static std::string Read(const FText& Text) { return TCHAR_TO_UTF8(*Text.ToString()); }

		QWidget& Leaf(const SWidget& Widget)
		{
			QWidget* Found = Host.FindLeaf(Widget);
			EXPECT_NE(Found, nullptr);
			return *Found;
		}
		void Click(const SWidget& Widget)
		{
			QTest::mouseClick(&Leaf(Widget), Qt::LeftButton);
			Frame(Host);
		}
		std::vector<std::string> TakeTold() { return std::exchange(Told, {}); }

		std::vector<std::string> Told;
		bool bRefuses = false;
		ECheckBoxState State = ECheckBoxState::Unchecked;
		TArray<TSharedPtr<FString>> Options;
		TSharedPtr<SVerticalBox> Root;
		TSharedPtr<STextBlock> Caption;
		TSharedPtr<SEditableTextBox> Box;
		TSharedPtr<SButton> Button;
		TSharedPtr<SCheckBox> Check;
		TSharedPtr<SComboBox<TSharedPtr<FString>>> Combo;
		FSlateHost Host;
	};
}

TEST_F(FSlateHostPage, TellsTheBoxOfEachCharacterThatIsTyped)
{
	Click(*Box);
	EXPECT_TRUE(Box->HasKeyboardFocus());
	QTest::keyClicks(&Leaf(*Box), QStringLiteral("Ab"));
	EXPECT_EQ(TakeTold(), (std::vector<std::string>{"changed A", "changed Ab"}));
	EXPECT_EQ(Box->GetText().ToString(), FString(TEXT("Ab")));
}

TEST_F(FSlateHostPage, EditsInTheMiddleOfAText)
{
	Box->SetText(FText::FromString(TEXT("Man")));
	Click(*Box);
	QLineEdit& Line = static_cast<QLineEdit&>(Leaf(*Box));
	Line.setCursorPosition(2);
	QTest::keyClicks(&Line, QStringLiteral("i"));
	EXPECT_EQ(Box->GetText().ToString(), FString(TEXT("Main")));
}

TEST_F(FSlateHostPage, CommitsABoxBeforeTheClickThatTakesItsFocusArrives)
{
	Click(*Box);
	QTest::keyClicks(&Leaf(*Box), QStringLiteral("A"));
	Click(*Button);
	EXPECT_EQ(TakeTold(),
		(std::vector<std::string>{
			"changed A", "committed A " + std::to_string(ETextCommit::OnUserMovedFocus), "clicked"}));
	EXPECT_TRUE(Button->HasKeyboardFocus());
}

TEST_F(FSlateHostPage, CommitsOnceOnEnterAndGivesUpTheFocus)
{
	Click(*Box);
	QTest::keyClicks(&Leaf(*Box), QStringLiteral("A"));
	QTest::keyClick(&Leaf(*Box), Qt::Key_Return);
	Frame(Host);
	EXPECT_EQ(
		TakeTold(), (std::vector<std::string>{"changed A", "committed A " + std::to_string(ETextCommit::OnEnter)}));
	EXPECT_FALSE(Leaf(*Box).hasFocus());
}

TEST_F(FSlateHostPage, CommitsWhenTheTabKeyMovesOn)
{
	Click(*Box);
	QTest::keyClick(&Leaf(*Box), Qt::Key_Tab);
	Frame(Host);
	EXPECT_EQ(TakeTold(), (std::vector<std::string>{"committed  " + std::to_string(ETextCommit::OnUserMovedFocus)}));
	EXPECT_TRUE(Button->HasKeyboardFocus());
	EXPECT_TRUE(Leaf(*Button).hasFocus());
}

TEST_F(FSlateHostPage, VisitsTheWidgetsWithTheTabKeyInTheOrderOfTheTree)
{
	Click(*Box);
	std::vector<const SWidget*> Visited;
	for (int Step = 0; Step < 3; ++Step)
	{
		QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
		Frame(Host);
		Visited.push_back(FSlateApplication::Get().GetKeyboardFocusedWidget().Get());
	}
	EXPECT_EQ(Visited, (std::vector<const SWidget*>{Button.Get(), Check.Get(), Combo.Get()}));
}

TEST_F(FSlateHostPage, VisitsAWidgetThatIsShownLaterInItsPlace)
{
	FSlateHost Later;
	Check->SetVisibility(EVisibility::Collapsed);
	Later.SetRoot(Root);
	ShowPanel(Later, 300, 300);
	Frame(Later);
	Check->SetVisibility(EVisibility::Visible);
	Frame(Later);
	Later.FindLeaf(*Button)->setFocus(Qt::TabFocusReason);
	QTest::keyClick(Later.FindLeaf(*Button), Qt::Key_Tab);
	EXPECT_EQ(FSlateApplication::Get().GetKeyboardFocusedWidget().Get(), Check.Get());
}

TEST_F(FSlateHostPage, StacksAnOverlaysWidgetsInTheirOrderWheneverTheyAreShown)
{
	TSharedPtr<SButton> Below;
	TSharedPtr<STextBlock> Above;
	// clang-format off
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay)
		+ SOverlay::Slot()[SAssignNew(Below, SButton).Visibility(EVisibility::Collapsed)]
		+ SOverlay::Slot()[SAssignNew(Above, STextBlock).Text(FText::FromString(TEXT("above")))];
	// clang-format on
	Host.SetRoot(Overlay);
	Frame(Host);
	Below->SetVisibility(EVisibility::Visible);
	Frame(Host);
	const QObjectList Stack = Host.children();
	EXPECT_LT(Stack.indexOf(&Leaf(*Below)), Stack.indexOf(&Leaf(*Above)));
}

TEST_F(FSlateHostPage, PressesAButtonOnceHoweverLongTheKeyIsHeld)
{
	FSlateApplication::Get().SetKeyboardFocus(Button);
	Frame(Host);
	for (const QEvent::Type Type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease})
	{
		QKeyEvent Repeated(Type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
		QApplication::sendEvent(&Leaf(*Button), &Repeated);
	}
	EXPECT_EQ(TakeTold(), std::vector<std::string>());
	QTest::keyClick(&Leaf(*Button), Qt::Key_Space);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"clicked"});
}

TEST_F(FSlateHostPage, PressesButtonsWithSpaceAndEnter)
{
	FSlateApplication::Get().SetKeyboardFocus(Button);
	Frame(Host);
	QTest::keyClick(&Leaf(*Button), Qt::Key_Space);
	QTest::keyClick(&Leaf(*Button), Qt::Key_Return);
	EXPECT_EQ(TakeTold(), (std::vector<std::string>{"clicked", "clicked"}));
}

TEST_F(FSlateHostPage, DoesNothingWhenTheMouseIsLetGoBesideTheButton)
{
	QTest::mousePress(&Leaf(*Button), Qt::LeftButton);
	QTest::mouseRelease(&Leaf(*Button), Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
	Frame(Host);
	EXPECT_EQ(TakeTold(), std::vector<std::string>());
	Click(*Button);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"clicked"});
}

TEST_F(FSlateHostPage, ShowsTheStateThatACheckBoxIsBoundTo)
{
	QCheckBox& Shown = static_cast<QCheckBox&>(Leaf(*Check));
	EXPECT_EQ(Shown.checkState(), Qt::Unchecked);
	State = ECheckBoxState::Undetermined;
	Frame(Host);
	EXPECT_EQ(Shown.checkState(), Qt::PartiallyChecked);
	Click(*Check);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"ticked"});
	EXPECT_EQ(Shown.checkState(), Qt::Checked);
}

TEST_F(FSlateHostPage, ChangesNoCheckBoxThatStaysAsItIs)
{
	bRefuses = true;
	QTest::mouseClick(&Leaf(*Check), Qt::LeftButton);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"ticked"});
	EXPECT_EQ(static_cast<QCheckBox&>(Leaf(*Check)).checkState(), Qt::Unchecked) << "not even for a frame";
}

TEST_F(FSlateHostPage, OpensTheListAtWhatIsSelected)
{
	Combo->SetSelectedItem(Options[1]);
	QComboBox& Shown = static_cast<QComboBox&>(Leaf(*Combo));
	Shown.showPopup();
	EXPECT_EQ(Shown.currentIndex(), 1);
	Shown.hidePopup();
}

TEST_F(FSlateHostPage, OffersTheOptionsThatThereAreWhenTheListOpens)
{
	Options.Add(MakeShared<FString>(TEXT("Third")));
	QComboBox& Shown = static_cast<QComboBox&>(Leaf(*Combo));
	Shown.showPopup();
	EXPECT_TRUE(Combo->IsOpen());
	ASSERT_EQ(Shown.count(), 3);
	EXPECT_EQ(Shown.itemText(2), QStringLiteral("Third"));
	Options.RemoveAt(0);
	Frame(Host);
	EXPECT_EQ(Shown.itemText(0), QStringLiteral("Second")) << "an open list follows";
	Shown.hidePopup();
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(FSlateHostPage, TellsTheComboBoxWhatWasPicked)
{
	QComboBox& Shown = static_cast<QComboBox&>(Leaf(*Combo));
	Shown.showPopup();
	QTest::keyClick(Shown.view(), Qt::Key_Home);
	QTest::keyClick(Shown.view(), Qt::Key_Return);
	Frame(Host);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"picked Main"});
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(FSlateHostPage, StepsThroughAClosedComboBoxWithTheArrows)
{
	FSlateApplication::Get().SetKeyboardFocus(Combo);
	Frame(Host);
	QTest::keyClick(&Leaf(*Combo), Qt::Key_Down);
	QTest::keyClick(&Leaf(*Combo), Qt::Key_Down);
	EXPECT_EQ(TakeTold(), (std::vector<std::string>{"picked Main", "picked Second"}));
}

TEST_F(FSlateHostPage, TakesThreeMillionCharactersButNoLineBreaks)
{
	Click(*Box);
	QApplication::clipboard()->setText(QString(3'000'000, u'x') + QStringLiteral("a\r\nb\tc"));
	QTest::keyClick(&Leaf(*Box), Qt::Key_V, Qt::ControlModifier);
	const FString Text = Box->GetText().ToString();
	EXPECT_EQ(Text.Len(), 3'000'004);
	EXPECT_TRUE(Text.EndsWith(TEXT("xab\tc"))) << "as the engine's own box pastes";
	EXPECT_EQ(static_cast<QLineEdit&>(Leaf(*Box)).text().size(), 3'000'004);
}

TEST_F(FSlateHostPage, TypesNoControlCharacters)
{
	Click(*Box);
	for (const int Character : {1, 8, 9, 27, 127})
	{
		QKeyEvent Press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(Character)));
		QApplication::sendEvent(&Leaf(*Box), &Press);
	}
	EXPECT_EQ(Box->GetText().ToString(), FString());
}

TEST_F(FSlateHostPage, TakesWhatAnInputMethodCommits)
{
	Click(*Box);
	QInputMethodEvent Composing(QStringLiteral("かん"), {});
	QApplication::sendEvent(&Leaf(*Box), &Composing);
	Frame(Host);
	EXPECT_EQ(TakeTold(), std::vector<std::string>()) << "not yet";
	QInputMethodEvent Committing;
	Committing.setCommitString(QStringLiteral("漢"));
	QApplication::sendEvent(&Leaf(*Box), &Committing);
	EXPECT_EQ(TakeTold(), std::vector<std::string>{"changed 漢"});
}

TEST_F(FSlateHostPage, HidesWhatIsHiddenAndKeepsItsPlace)
{
	const int Before = Leaf(*Button).y();
	Box->SetVisibility(EVisibility::Hidden);
	Frame(Host);
	EXPECT_FALSE(Leaf(*Box).isVisible());
	EXPECT_EQ(Leaf(*Button).y(), Before);
	Box->SetVisibility(EVisibility::Collapsed);
	Frame(Host);
	EXPECT_LT(Leaf(*Button).y(), Before);
}

TEST_F(FSlateHostPage, PassesTheFocusToNobodyWhenItsWidgetIsHidden)
{
	Click(*Box);
	Box->SetVisibility(EVisibility::Hidden);
	Frame(Host);
	Frame(Host);
	EXPECT_FALSE(FSlateApplication::Get().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FSlateHostPage, DisablesWhatStandsInADisabledParent)
{
	Root->SetEnabled(false);
	Frame(Host);
	EXPECT_FALSE(Leaf(*Button).isEnabled());
	EXPECT_FALSE(Leaf(*Box).isEnabled());
}

TEST_F(FSlateHostPage, IsEmptyOnceItsTreeHasGone)
{
	const QPointer<QWidget> Shown = &Leaf(*Button);
	Caption.Reset();
	Box.Reset();
	Button.Reset();
	Check.Reset();
	Combo.Reset();
	Root.Reset();
	Frame(Host);
	EXPECT_TRUE(Shown.isNull());
	EXPECT_EQ(Host.findChildren<QWidget*>().size(), 0);
}

TEST_F(FSlateHostPage, TellsAssistiveTechnologyNamesAndRoles)
{
	const auto Describe = [this](const SWidget& Widget)
	{
		const QAccessibleInterface* Interface = QAccessible::queryAccessibleInterface(&Leaf(Widget));
		return std::make_pair(Interface->role(), Interface->text(QAccessible::Name).toStdString());
	};
	EXPECT_EQ(Describe(*Box), std::make_pair(QAccessible::EditableText, std::string("Name:")));
	EXPECT_EQ(Describe(*Button), std::make_pair(QAccessible::Button, std::string("Create")));
	EXPECT_EQ(Describe(*Check).first, QAccessible::CheckBox);
	EXPECT_EQ(Describe(*Combo), std::make_pair(QAccessible::ComboBox, std::string("Create: closed")));
	EXPECT_EQ(Describe(*Caption), std::make_pair(QAccessible::StaticText, std::string("Name:")));
}
