// Copyright Corvane. MIT License.
#include "WindowFixture.h"

#include <QtTest/QTest>

#include "Panels/SendersPanel.h"
#include "WindowText.h"

#include "ZAVSpoutNames.h"

class FSendersPanelTest : public FWindowFixture
{
protected:
	FSendersPanelTest()
	{
		ZAVSpoutNames::SetActiveSenderNames({});
		ShowPanel(Panel, 300, 300);
		Step();
	}
	~FSendersPanelTest() override { ZAVSpoutNames::SetActiveSenderNames({}); }

	void Step() { Frame(Panel); }
	void Set(const TArray<FString>& Names)
	{
		ZAVSpoutNames::SetActiveSenderNames(Names);
		Advance(0.25);
		Step();
	}
	static QStringList GetActive()
	{
		QStringList Names;
		for (const FString& Name : ZAVSpoutNames::GetActiveSenderNames())
		{
			Names.push_back(FWindowText::ToQt(Name));
		}
		return Names;
	}
	QStringList GetShown() const
	{
		QStringList Names;
		for (int Row = 0; Row < Panel.GetList().count(); ++Row)
		{
			Names.push_back(Panel.GetList().item(Row)->text());
		}
		return Names;
	}
	QStringList GetSelected() const
	{
		QStringList Names;
		for (const QListWidgetItem* Entry : Panel.GetList().selectedItems())
		{
			Names.push_back(Entry->text());
		}
		return Names;
	}
	QPushButton* GetButton(const char* Name) const
	{
		for (QPushButton* Button : Panel.findChildren<QPushButton*>())
		{
			if (Button->text() == QString::fromLatin1(Name))
			{
				return Button;
			}
		}
		ADD_FAILURE() << Name;
		return nullptr;
	}
	void Press(const char* Name) { QTest::mouseClick(GetButton(Name), Qt::LeftButton); }
	bool SaysThatThereAreNone() const
	{
		const QLabel* Label = Panel.GetList().findChild<QLabel*>();
		return Label && Label->isVisible() && Label->text() == QStringLiteral("No active senders");
	}
	void Click(int Row, Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
	{
		QTest::mouseClick(Panel.GetList().viewport(), Qt::LeftButton, Modifiers,
			Panel.GetList().visualItemRect(Panel.GetList().item(Row)).center());
	}
	/** What is being typed into the list. */
	QLineEdit* GetEditor() const
	{
		QLineEdit* Edit = Panel.GetList().findChild<QLineEdit*>();
		EXPECT_NE(Edit, nullptr);
		return Edit;
	}

	FSendersPanel Panel{Context};
};

TEST_F(FSendersPanelTest, SaysThatThereAreNone)
{
	EXPECT_TRUE(SaysThatThereAreNone());
	EXPECT_FALSE(GetButton("Remove")->isEnabled());
	EXPECT_FALSE(GetButton("Remove all")->isEnabled());
	Grab(Panel, "senders-none");
	Set({TEXT("A")});
	EXPECT_FALSE(SaysThatThereAreNone());
	EXPECT_TRUE(GetButton("Remove all")->isEnabled());
}

TEST_F(FSendersPanelTest, AddsWhatIsTyped)
{
	QTest::keyClicks(&Panel.GetNameBox(), QStringLiteral("Stage"));
	QTest::keyClick(&Panel.GetNameBox(), Qt::Key_Return);
	EXPECT_EQ(GetActive(), QStringList({"Stage"}));
	EXPECT_EQ(GetShown(), QStringList({"Stage"}));
	EXPECT_EQ(LastSaid, QStringLiteral("Added sender \"Stage\""));
	EXPECT_EQ(Panel.GetNameBox().text(), QString());
	QTest::keyClicks(&Panel.GetNameBox(), QStringLiteral("stage"));
	Press("Add");
	EXPECT_EQ(GetActive(), QStringList({"Stage", "stage"}));
	EXPECT_EQ(GetSelected(), QStringList({"stage"}));
	Grab(Panel, "senders");
}

TEST_F(FSendersPanelTest, RefusesNamesThatAreNone)
{
	Set({TEXT("Stage")});
	Press("Add");
	EXPECT_EQ(LastSaid, QStringLiteral("A sender needs a name"));
	Panel.GetNameBox().setText(QStringLiteral("  "));
	LastSaid.clear();
	Press("Add");
	EXPECT_EQ(LastSaid, QStringLiteral("A sender needs a name"));
	Panel.GetNameBox().setText(QStringLiteral("Stage"));
	Press("Add");
	EXPECT_EQ(LastSaid, QStringLiteral("There is a sender \"Stage\" already"));
	EXPECT_EQ(Panel.GetNameBox().text(), QStringLiteral("Stage"));
	EXPECT_EQ(GetActive(), QStringList({"Stage"}));
}

TEST_F(FSendersPanelTest, RefusesNamesThatSpoutCannotKeep)
{
	Panel.GetNameBox().setText(QString(256, u'n'));
	Press("Add");
	EXPECT_TRUE(LastSaid.startsWith(QStringLiteral("A sender's name has at most 255 bytes: \"nnn")));
	EXPECT_LT(LastSaid.size(), 100);
	Panel.GetNameBox().setText(QString(128, QChar(0xe4)));
	Press("Add");
	EXPECT_TRUE(GetActive().isEmpty());
	Panel.GetNameBox().setText(QString(255, u'n'));
	Press("Add");
	EXPECT_EQ(GetActive(), QStringList({QString(255, u'n')}));
	Grab(Panel, "senders-long");
}

TEST_F(FSendersPanelTest, RemovesWhatIsSelected)
{
	Set({TEXT("A"), TEXT("B"), TEXT("C"), TEXT("D")});
	EXPECT_FALSE(GetButton("Remove")->isEnabled());
	Click(0);
	Click(2, Qt::ControlModifier);
	Press("Remove");
	EXPECT_EQ(GetActive(), QStringList({"B", "D"}));
	EXPECT_EQ(GetShown(), QStringList({"B", "D"}));
	EXPECT_EQ(LastSaid, QStringLiteral("Removed 2 senders"));
	EXPECT_EQ(GetSelected(), QStringList({"B"}));
}

TEST_F(FSendersPanelTest, RemovesByTheDeleteKey)
{
	Set({TEXT("A"), TEXT("B"), TEXT("C")});
	Click(1);
	QTest::keyClick(&Panel.GetList(), Qt::Key_Delete);
	EXPECT_EQ(GetActive(), QStringList({"A", "C"}));
	EXPECT_EQ(LastSaid, QStringLiteral("Removed sender \"B\""));
	QTest::keyClick(&Panel.GetList(), Qt::Key_Delete);
	QTest::keyClick(&Panel.GetList(), Qt::Key_Delete);
	EXPECT_TRUE(GetActive().isEmpty());
	LastSaid.clear();
	QTest::keyClick(&Panel.GetList(), Qt::Key_Delete);
	EXPECT_EQ(LastSaid, QString());
}

TEST_F(FSendersPanelTest, RemovesTheOneThatIsMeantWhereverItIsNow)
{
	Set({TEXT("A"), TEXT("B")});
	Click(0);
	ZAVSpoutNames::SetActiveSenderNames({TEXT("B"), TEXT("A")});
	Press("Remove");
	EXPECT_EQ(GetActive(), QStringList({"B"}));
	Set({TEXT("A"), TEXT("B")});
	Click(0);
	ZAVSpoutNames::SetActiveSenderNames({TEXT("B")});
	Press("Remove");
	EXPECT_EQ(GetActive(), QStringList({"B"}));
}

TEST_F(FSendersPanelTest, RemovesAll)
{
	Set({TEXT("A"), TEXT("B")});
	Press("Remove all");
	EXPECT_TRUE(GetActive().isEmpty());
	EXPECT_TRUE(SaysThatThereAreNone());
	EXPECT_EQ(LastSaid, QStringLiteral("Removed 2 senders"));
	Set({TEXT("A")});
	Press("Remove all");
	EXPECT_EQ(LastSaid, QStringLiteral("Removed 1 sender"));
}

TEST_F(FSendersPanelTest, RenamesByDoubleClick)
{
	Set({TEXT("A"), TEXT("B")});
	Click(1);
	QTest::mouseDClick(Panel.GetList().viewport(), Qt::LeftButton, Qt::NoModifier,
		Panel.GetList().visualItemRect(Panel.GetList().item(1)).center());
	QTest::keyClicks(GetEditor(), QStringLiteral("New"));
	// What others do meanwhile must not take the box away.
	Advance(1.0);
	Step();
	QTest::keyClick(GetEditor(), Qt::Key_Return);
	Step();
	EXPECT_EQ(GetActive(), QStringList({"A", "New"}));
	EXPECT_EQ(GetShown(), QStringList({"A", "New"}));
	EXPECT_EQ(LastSaid, QStringLiteral("Renamed sender \"B\" to \"New\""));
}

TEST_F(FSendersPanelTest, RefusesANewNameThatIsTaken)
{
	Set({TEXT("A"), TEXT("B")});
	Click(1);
	QTest::keyClick(&Panel.GetList(), Qt::Key_F2);
	QTest::keyClicks(GetEditor(), QStringLiteral("A"));
	QTest::keyClick(GetEditor(), Qt::Key_Return);
	Step();
	EXPECT_EQ(GetActive(), QStringList({"A", "B"}));
	EXPECT_EQ(GetShown(), QStringList({"A", "B"}));
	EXPECT_EQ(LastSaid, QStringLiteral("There is a sender \"A\" already"));
	QTest::keyClick(&Panel.GetList(), Qt::Key_F2);
	QTest::keyClick(GetEditor(), Qt::Key_Escape);
	Step();
	EXPECT_EQ(GetActive(), QStringList({"A", "B"}));
}

TEST_F(FSendersPanelTest, RenamesNothingThatHasGoneMeanwhile)
{
	Set({TEXT("A"), TEXT("B")});
	Click(1);
	QTest::keyClick(&Panel.GetList(), Qt::Key_F2);
	QTest::keyClicks(GetEditor(), QStringLiteral("New"));
	ZAVSpoutNames::SetActiveSenderNames({TEXT("A")});
	Advance(1.0);
	Step();
	EXPECT_EQ(GetShown(), QStringList({"A", "B"}));
	QTest::keyClick(GetEditor(), Qt::Key_Return);
	Step();
	EXPECT_EQ(LastSaid, QStringLiteral("Sender \"B\" is no longer active"));
	Step();
	EXPECT_EQ(GetActive(), QStringList({"A"}));
	EXPECT_EQ(GetShown(), QStringList({"A"}));
}

TEST_F(FSendersPanelTest, FollowsWhatOthersDoAndKeepsTheSelection)
{
	Set({TEXT("A"), TEXT("B"), TEXT("C")});
	Click(1);
	ZAVSpoutNames::SetActiveSenderNames({TEXT("Before"), TEXT("A"), TEXT("B")});
	Advance(0.2);
	Step();
	EXPECT_EQ(GetShown(), QStringList({"A", "B", "C"}));
	Advance(0.05);
	Step();
	EXPECT_EQ(GetShown(), QStringList({"Before", "A", "B"}));
	EXPECT_EQ(GetSelected(), QStringList({"B"}));
	EXPECT_EQ(Panel.GetList().currentRow(), 2);
	// Letter case makes another name.
	Set({TEXT("Before"), TEXT("A"), TEXT("b")});
	EXPECT_EQ(GetShown(), QStringList({"Before", "A", "b"}));
	EXPECT_TRUE(GetSelected().isEmpty());
}
