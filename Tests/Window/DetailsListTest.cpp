// Copyright Corvane. MIT License.
#include "DetailsViewFixture.h"

#include <QtTest/QTest>

#include <chrono>

#include "Editor.h"
#include "Panels/DetailsList.h"
#include "Panels/DetailsSplitter.h"
#include "SlateHost.h"
#include "Widgets/Text/STextBlock.h"

#include "ZAVCineCamCapture.h"
#include "ZAVSpoutNames.h"
#include "ZAVSpoutReceiverManager.h"

class FDetailsListTest : public FDetailsViewFixture
{
protected:
	~FDetailsListTest() override { ZAVSpoutNames::SetActiveSenderNames({}); }

	AZAVSpoutReceiverManager& SelectManager(int Receivers)
	{
		AZAVSpoutReceiverManager* Manager = Spawn<AZAVSpoutReceiverManager>();
		Manager->SpoutReceivers.SetNum(Receivers);
		Select({Manager});
		Open(GetLine("Spout Receivers"));
		Open(GetLine("0"));
		return *Manager;
	}
	/** The drop-down of the receivers' names that is seen. */
	QComboBox* GetCombo() const
	{
		const QList<QComboBox*> Found = View.GetList().findChildren<QComboBox*>();
		EXPECT_EQ(Found.size(), 1);
		return Found.isEmpty() ? nullptr : Found.front();
	}
	int GetScroll() const { return View.GetList().verticalScrollBar()->value(); }
	void Search(const QString& Text)
	{
		View.GetSearch().clear();
		QTest::keyClicks(&View.GetSearch(), Text);
		Step();
	}
};

TEST_F(FDetailsListTest, OpensAndClosesByKeyboard)
{
	SelectOne();
	FDetailsLine* Inner = GetLine("Inner");
	EXPECT_FALSE(Inner->IsOpen());
	EXPECT_EQ(Inner->accessibleDescription(), QStringLiteral("closed"));
	Open(Inner);
	EXPECT_EQ(Inner->accessibleDescription(), QStringLiteral("open"));
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Count")));
	QTest::keyClick(Inner, Qt::Key_Right);
	EXPECT_TRUE(Inner->IsOpen());
	QTest::keyClick(Inner, Qt::Key_Left);
	EXPECT_FALSE(GetNames().contains(QStringLiteral("Count")));
	QTest::keyClick(Inner, Qt::Key_Left);
	EXPECT_FALSE(Inner->IsOpen());
	QTest::keyClick(Inner, Qt::Key_Return);
	EXPECT_TRUE(Inner->IsOpen());
	QTest::keyClick(Inner, Qt::Key_Enter);
	EXPECT_FALSE(Inner->IsOpen());
	EXPECT_EQ(QApplication::focusWidget(), Inner);
}

TEST_F(FDetailsListTest, OpensAndClosesByMouse)
{
	SelectOne();
	QTest::mouseClick(GetLine("Test"), Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
	EXPECT_EQ(GetNames(), QStringList({"Test", "Test", "Strength", "Notes"}));
	QTest::mouseClick(GetLine("Test"), Qt::LeftButton, Qt::NoModifier, QPoint(12, 10));
	FDetailsLine* Inner = GetLine("Inner");
	// The name only takes the focus; the arrow head opens, and so does a double click.
	QTest::mouseClick(Inner, Qt::LeftButton, Qt::NoModifier, QPoint(60, 12));
	EXPECT_FALSE(Inner->IsOpen());
	QTest::mouseClick(Inner, Qt::LeftButton, Qt::NoModifier, QPoint(24, 12));
	EXPECT_TRUE(Inner->IsOpen());
	QTest::mouseDClick(Inner, Qt::LeftButton, Qt::NoModifier, QPoint(60, 12));
	EXPECT_FALSE(Inner->IsOpen());
	QTest::mouseClick(Inner, Qt::RightButton, Qt::NoModifier, QPoint(24, 12));
	EXPECT_FALSE(Inner->IsOpen());
}

TEST_F(FDetailsListTest, StepsFromLineToLine)
{
	SelectOne();
	FDetailsLine* Inner = GetLine("Inner");
	Inner->setFocus();
	QTest::keyClick(Inner, Qt::Key_Down);
	EXPECT_EQ(QApplication::focusWidget(), GetLine("Numbers"));
	QTest::keyClick(GetLine("Numbers"), Qt::Key_Up);
	EXPECT_EQ(QApplication::focusWidget(), Inner);
	GetLine("Test")->setFocus();
	QTest::keyClick(GetLine("Test"), Qt::Key_Up);
	EXPECT_EQ(QApplication::focusWidget(), GetLine("Test"));
}

TEST_F(FDetailsListTest, RemembersWhatIsOpenForEachClass)
{
	AActor* Camera = Spawn<AZAVCineCamCapture>();
	AActor* OtherCamera = Spawn<AZAVCineCamCapture>();
	AActor* Other = Spawn<AEveryPropertyActor>();
	Select({Camera});
	EXPECT_FALSE(GetNames().contains(QStringLiteral("General Show Flags")));
	Open(GetLine("Advanced"));
	EXPECT_FALSE(GetLine("General Show Flags")->IsOpen());
	Open(GetLine("Light Types Show Flags"));
	const QStringList Names = GetNames();
	Grab(View, "details-camera");
	Select({Other});
	QTest::mouseClick(GetLine("Test"), Qt::LeftButton);
	Select({OtherCamera});
	EXPECT_EQ(GetNames(), Names);
	Select({Camera, OtherCamera});
	EXPECT_EQ(GetNames(), Names);
	Select({Other});
	EXPECT_FALSE(GetLine("Test")->IsOpen());
	// The component's category is called the same, and is another one.
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Strength")));
}

TEST_F(FDetailsListTest, FindsRowsByAllWords)
{
	SelectOne();
	Search(QStringLiteral("nUMb"));
	EXPECT_EQ(GetNames(), QStringList({"Test", "Number", "Numbers"}));
	Search(QStringLiteral("cou"));
	EXPECT_EQ(GetNames(), QStringList({"Test", "Inner", "Count"}));
	Search(QStringLiteral(" label  xyz"));
	EXPECT_TRUE(GetNames().isEmpty());
	EXPECT_EQ(View.GetMessage(), QStringLiteral("No property matches the search."));
	EXPECT_TRUE(View.GetSearch().hasFocus());
	Search(QString());
	EXPECT_EQ(GetNames().size(), 16);
	EXPECT_EQ(View.GetMessage(), QString());
}

TEST_F(FDetailsListTest, KeepsACategoryOrGroupThatIsFoundWhole)
{
	SelectOne();
	Search(QStringLiteral("test"));
	EXPECT_EQ(GetNames().size(), 16);
	Select({Spawn<AZAVCineCamCapture>()});
	Search(QStringLiteral("light types"));
	EXPECT_EQ(GetNames().mid(0, 3), QStringList({"Corvane Capture Settings", "Advanced", "Light Types Show Flags"}));
	EXPECT_GT(GetNames().size(), 3);
	// Only the heading is called so, not what is folded away below it.
	Search(QStringLiteral("advanced"));
	EXPECT_FALSE(GetNames().contains(QStringLiteral("General Show Flags")));
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Advanced Show Flags")));
	Search(QStringLiteral("fog"));
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Fog")));
	EXPECT_FALSE(GetNames().contains(QStringLiteral("Light Types Show Flags")));
	// What the search has opened closes with it.
	Search(QString());
	EXPECT_FALSE(GetLine("Advanced")->IsOpen());
}

TEST_F(FDetailsListTest, MovesTheSplitterOfAllRows)
{
	SelectOne();
	const FDetailsList& List = View.GetList();
	FDetailsSplitter& Splitter = List.GetSplitter();
	const int Before = List.GetNameWidth();
	QTest::mousePress(&Splitter, Qt::LeftButton, Qt::NoModifier, QPoint(2, 50));
	QTest::mouseMove(&Splitter, QPoint(42, 50));
	QTest::mouseRelease(&Splitter, Qt::LeftButton, Qt::NoModifier, QPoint(2, 50));
	EXPECT_EQ(List.GetNameWidth(), Before + 40);
	EXPECT_GT(GetValue<QLineEdit>("Number")->mapTo(&List, QPoint()).x(), Before + 40);
	EXPECT_EQ(GetValue<QLineEdit>("Number")->mapTo(&List, QPoint()).x(),
		GetValue<QLineEdit>("Strength")->mapTo(&List, QPoint()).x());
	Splitter.setFocus(Qt::TabFocusReason);
	QTest::keyClick(&Splitter, Qt::Key_Left);
	EXPECT_EQ(List.GetNameWidth(), Before + 32);
	QTest::keyClick(&Splitter, Qt::Key_Right);
	EXPECT_EQ(List.GetNameWidth(), Before + 40);
	for (int Press = 0; Press < 100; ++Press)
	{
		QTest::keyClick(&Splitter, Qt::Key_Right);
	}
	const int Farthest = List.GetNameWidth();
	EXPECT_LT(Farthest, List.viewport()->width() - 40);
	QTest::keyClick(&Splitter, Qt::Key_Left);
	EXPECT_EQ(List.GetNameWidth(), Farthest - 8);
	View.resize(80, 200);
	QCoreApplication::processEvents();
	EXPECT_EQ(List.GetNameWidth(), List.viewport()->width() / 2);
}

TEST_F(FDetailsListTest, OffersToResetOnlyWhatIsNotTheDefault)
{
	AEveryPropertyActor& Actor = SelectOne();
	EXPECT_FALSE(GetReset("Number")->isVisible());
	Actor.Number = 12;
	Actor.Fraction = 2.0f;
	Beat();
	Grab(View, "details-reset");
	EXPECT_TRUE(GetReset("Fraction")->isVisible());
	EXPECT_FALSE(GetReset("Inner")->isVisible());
	ASSERT_TRUE(GetReset("Number")->isVisible());
	QTest::mouseClick(GetReset("Number"), Qt::LeftButton);
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_EQ(LastSaid, QStringLiteral("Reset Number"));
	EXPECT_EQ(GetUndo(), QStringLiteral("Edit Number"));
	Step();
	EXPECT_FALSE(GetReset("Number")->isVisible());
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("3"));
	GEditor->UndoTransaction();
	EXPECT_EQ(Actor.Number, 12);
	Beat();
	EXPECT_TRUE(GetReset("Number")->isVisible());
}

TEST_F(FDetailsListTest, ChoosesASenderFromTheList)
{
	ZAVSpoutNames::SetActiveSenderNames({TEXT("Stage"), TEXT("Backdrop")});
	AZAVSpoutReceiverManager& Manager = SelectManager(1);
	QComboBox* Combo = GetCombo();
	ASSERT_NE(Combo, nullptr);
	QTest::mouseClick(Combo, Qt::LeftButton);
	ASSERT_GE(Combo->count(), 3);
	const int Wanted = Combo->findText(QStringLiteral("Backdrop"));
	ASSERT_GE(Wanted, 0);
	QTest::keyClick(Combo->view(), Qt::Key_Home);
	for (int Row = 0; Row < Wanted; ++Row)
	{
		QTest::keyClick(Combo->view(), Qt::Key_Down);
	}
	QTest::keyClick(Combo->view(), Qt::Key_Return);
	EXPECT_TRUE(Manager.SpoutReceivers[0].Name.Equals(TEXT("Backdrop")));
	EXPECT_FALSE(Manager.SpoutReceivers[0].UseFirstAvailableSender);
	Step();
	EXPECT_EQ(GetCombo()->accessibleName(), QStringLiteral("Name: Backdrop"));
}

TEST_F(FDetailsListTest, ShowsThatASenderStartsAndStops)
{
	ZAVSpoutNames::SetActiveSenderNames({TEXT("Stage")});
	AZAVSpoutReceiverManager* Manager = Spawn<AZAVSpoutReceiverManager>();
	Manager->SpoutReceivers[0].UseFirstAvailableSender = false;
	Manager->SpoutReceivers[0].Name = TEXT("Stage");
	Select({Manager});
	Open(GetLine("Spout Receivers"));
	Open(GetLine("0"));
	EXPECT_EQ(GetCombo()->accessibleName(), QStringLiteral("Name: Stage"));
	ZAVSpoutNames::SetActiveSenderNames({});
	for (int Frames = 0; Frames < 59; ++Frames)
	{
		Advance(1.0 / 60.0);
		Step();
	}
	EXPECT_EQ(GetCombo()->accessibleName(), QStringLiteral("Name: Stage [lost]"));
	ZAVSpoutNames::SetActiveSenderNames({TEXT("Stage")});
	Beat();
	EXPECT_EQ(GetCombo()->accessibleName(), QStringLiteral("Name: Stage"));
}

TEST_F(FDetailsListTest, GivesAValueTheWidthThatItsRowAsksFor)
{
	SelectManager(1);
	View.resize(900, 600);
	QCoreApplication::processEvents();
	Beat();
	EXPECT_GE(GetCombo()->width(), 250);
	EXPECT_LE(FindRow("SpoutReceivers[0]")->GetHost().width(), 500);
	View.resize(200, 600);
	QCoreApplication::processEvents();
	Beat();
	EXPECT_LT(GetCombo()->mapTo(&View, QPoint(GetCombo()->width(), 0)).x(), 200);
}

TEST_F(FDetailsListTest, KeepsFocusAndScrollWhileAnArrayGrows)
{
	AZAVSpoutReceiverManager& Manager = SelectManager(40);
	View.resize(420, 300);
	Open(FindRow("SpoutReceivers[39]"));
	View.GetList().verticalScrollBar()->setValue(View.GetList().verticalScrollBar()->maximum());
	Beat();
	QLineEdit* Edit = GetValue<QLineEdit>("SpoutReceivers[39].RenderTarget");
	QTest::mouseClick(Edit, Qt::LeftButton);
	QTest::keyClicks(Edit, QStringLiteral("/Game/A"));
	const QString Typed = Edit->text();
	const int Scroll = GetScroll();
	ASSERT_GT(Scroll, 100);
	const QPointer<QWidget> Row = FindRow("SpoutReceivers[39]");
	QList<QWidget*> HadFocus;
	const auto Connection = QObject::connect(
		qApp, &QApplication::focusChanged, &View, [&](QWidget*, QWidget* Now) { HadFocus.push_back(Now); });
	Manager.SpoutReceivers.SetNum(41);
	Beat();
	ASSERT_NE(FindRow("SpoutReceivers[40]"), nullptr);
	EXPECT_EQ(GetScroll(), Scroll);
	EXPECT_EQ(FindRow("SpoutReceivers[39]"), Row);
	QLineEdit* Anew = GetValue<QLineEdit>("SpoutReceivers[39].RenderTarget");
	EXPECT_NE(Anew, Edit);
	EXPECT_EQ(QApplication::focusWidget(), Anew);
	EXPECT_EQ(Anew->text(), Typed);
	// Nor did any other box have it meanwhile, which would have told the engine.
	QObject::disconnect(Connection);
	HadFocus.removeAll(nullptr);
	EXPECT_EQ(HadFocus, QList<QWidget*>({Anew}));
	Step();
	EXPECT_EQ(QApplication::focusWidget(), Anew);
	EXPECT_EQ(Anew->text(), Typed);
}

TEST_F(FDetailsListTest, KeepsItsPlaceWhenSomethingAboveItGrows)
{
	AZAVSpoutReceiverManager& Manager = SelectManager(40);
	View.resize(420, 300);
	View.GetList().ensureWidgetVisible(FindRow("SpoutReceivers[30]"));
	const int Y = FindRow("SpoutReceivers[30]")->mapTo(&View, QPoint()).y();
	Beat();
	QTest::mouseClick(&View, Qt::LeftButton);
	View.GetList().FindLine(QStringLiteral("1"))->OnOpen(true);
	Step();
	ASSERT_NE(FindRow("SpoutReceivers[1].Active"), nullptr);
	EXPECT_EQ(FindRow("SpoutReceivers[30]")->mapTo(&View, QPoint()).y(), Y);
	EXPECT_EQ(Manager.SpoutReceivers.Num(), 40);
	// Another selection begins at the top.
	AZAVSpoutReceiverManager* Other = Spawn<AZAVSpoutReceiverManager>();
	Other->SpoutReceivers.SetNum(40);
	Select({Other});
	EXPECT_EQ(GetScroll(), 0);
}

TEST_F(FDetailsListTest, HandsTheFocusOnWhenItsRowGoes)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.Numbers.Add(5);
	Beat();
	Open(FindRow("Numbers"));
	GetValue<QLineEdit>("Numbers[0]")->setFocus();
	Actor.Numbers.Empty();
	Beat();
	EXPECT_EQ(QApplication::focusWidget(), FindRow("Structs"));
}

TEST_F(FDetailsListTest, GoesThroughAllStopsByTab)
{
	SelectOne();
	View.resize(420, 200);
	View.GetSearch().setFocus();
	QStringList Seen;
	QWidget* Last = nullptr;
	for (int Presses = 0; Presses < 40 && QApplication::focusWidget() != Last; ++Presses)
	{
		Last = QApplication::focusWidget();
		Seen.push_back(Last->accessibleName());
		QTest::keyClick(Last, Qt::Key_Tab);
		if (QApplication::focusWidget() == &View.GetSearch())
		{
			break;
		}
		// Seen, too.
		EXPECT_TRUE(QApplication::focusWidget()->visibleRegion().boundingRect().height() > 5);
	}
	EXPECT_EQ(Seen,
		QStringList({"Search Details", "Test", "Flag", "Number", "Fraction", "Text", "Label", "Inner", "Texture",
			"Translated", "Passing", "Test", "Strength", "Width of the names"}));
	QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
	QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
	QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
	EXPECT_EQ(QApplication::focusWidget(), GetLine("Test"));
}

TEST_F(FDetailsListTest, ComesIntoSightByTab)
{
	SelectOne();
	View.resize(420, 200);
	View.GetList().verticalScrollBar()->setValue(View.GetList().verticalScrollBar()->maximum());
	ASSERT_GT(GetScroll(), 50);
	View.GetSearch().setFocus();
	QTest::keyClick(&View.GetSearch(), Qt::Key_Tab);
	EXPECT_EQ(QApplication::focusWidget(), GetLine("Test"));
	EXPECT_EQ(GetScroll(), 0);
}

TEST_F(FDetailsListTest, GivesAValueNoMoreThanItsWidthUnlessItFillsTheColumn)
{
	const TSharedRef<SWidget> Text = SNew(STextBlock).Text(FText::FromString(TEXT("Text")));
	FDetailsItem Item;
	Item.Value = Text;
	FDetailsRowLine Row(&View);
	Row.resize(600, 26);
	const auto GetWidth = [&](EHorizontalAlignment Alignment, TOptional<float> Min, TOptional<float> Max)
	{
		Item.Layout.HorizontalAlignment = Alignment;
		Item.Layout.MinWidth = Min;
		Item.Layout.MaxWidth = Max;
		Row.SetItem(Item);
		Row.Poll();
		return Row.GetHost().width();
	};
	const int Own = GetWidth(HAlign_Left, {}, {});
	EXPECT_EQ(Own, Row.GetHost().sizeHint().width());
	EXPECT_EQ(GetWidth(HAlign_Left, 200.0f, {}), 200);
	EXPECT_EQ(GetWidth(HAlign_Left, {}, 10.0f), 10);
	EXPECT_GT(GetWidth(HAlign_Fill, {}, {}), 400);
	EXPECT_EQ(GetWidth(HAlign_Fill, {}, 300.0f), 300);
}

TEST_F(FDetailsListTest, PollsOnlyWhatIsSeen)
{
	SelectManager(64);
	View.resize(420, 300);
	Beat();
	EXPECT_TRUE(FindRow("SpoutReceivers[0]")->IsPolled());
	EXPECT_FALSE(FindRow("SpoutReceivers[63]")->IsPolled());
	// At once, and so after each change of the width.
	View.GetList().verticalScrollBar()->setValue(View.GetList().verticalScrollBar()->maximum());
	Step();
	EXPECT_TRUE(FindRow("SpoutReceivers[63]")->IsPolled());
	View.resize(500, 300);
	QCoreApplication::processEvents();
	EXPECT_FALSE(FindRow("SpoutReceivers[63]")->IsPolled());
	Step();
	EXPECT_TRUE(FindRow("SpoutReceivers[63]")->IsPolled());
}

TEST_F(FDetailsListTest, ShowsTheValuesOfWhatHasJustBeenOpened)
{
	SelectOne();
	FDetailsLine* Inner = GetLine("Inner");
	Inner->setFocus();
	QTest::keyClick(Inner, Qt::Key_Right);
	EXPECT_EQ(GetValue<QLineEdit>("Inner.Count")->text(), QStringLiteral("7"));
}

TEST_F(FDetailsListTest, TellsWhatABeatCosts)
{
	SelectManager(64);
	for (int Receiver = 1; Receiver < 64; ++Receiver)
	{
		View.GetList().FindLine(QString::number(Receiver))->OnOpen(true);
	}
	Beat();
	EXPECT_GT(View.GetList().GetNumLines(), 250);
	QApplication::focusWidget()->clearFocus();
	const auto Measure = [this](double Seconds, int Times)
	{
		const auto Begin = std::chrono::steady_clock::now();
		for (int Round = 0; Round < Times; ++Round)
		{
			Advance(Seconds);
			View.Poll();
		}
		return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - Begin).count() / Times;
	};
	const double Beats = Measure(0.25, 100);
	const double Between = Measure(0.25 / 1000.0, 900);
	RecordProperty("beatMicroseconds", std::to_string(Beats));
	std::printf("64 receivers, %d lines: a beat %.0f us, a poll between two %.2f us\n", View.GetList().GetNumLines(),
		Beats, Between);
	// By far: what stands between two beats must look at nothing.
	EXPECT_LT(Between * 20.0, Beats);
}
