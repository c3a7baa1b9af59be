// Copyright Corvane. MIT License.
#include "DetailsViewFixture.h"

#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Editor.h"
#include "EditorViews.h"
#include "LevelProperties.h"
#include "Modules/ModuleManager.h"
#include "Panels/DetailsList.h"

#include "ZAVCineCamCapture.h"
#include "ZAVSpoutReceiverManager.h"

class FDetailsViewTest : public FDetailsViewFixture
{
protected:
	QString GetMessage() const
	{
		for (const QLabel* Label : View.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
		{
			if (Label->isVisible() && Label->text() == View.GetMessage())
			{
				return Label->text();
			}
		}
		return QString();
	}
	bool ShowsTitle(const QString& Title) const
	{
		const QList<QLabel*> Labels = View.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
		return std::any_of(
			Labels.begin(), Labels.end(), [&Title](const QLabel* Label) { return Label->text() == Title; });
	}
};

TEST_F(FDetailsViewTest, AsksForAnActorWhileNoneIsSelected)
{
	Step();
	EXPECT_EQ(GetMessage(), QStringLiteral("Select an actor to see its details."));
	EXPECT_FALSE(View.GetList().isVisible());
	AEveryPropertyActor& Actor = SelectOne();
	EXPECT_EQ(GetMessage(), QString());
	EXPECT_TRUE(View.GetList().isVisible());
	EXPECT_TRUE(ShowsTitle(QString::fromUtf16(*Actor.GetName())));
	Select({});
	EXPECT_EQ(GetMessage(), QStringLiteral("Select an actor to see its details."));
	EXPECT_TRUE(GetNames().isEmpty());
}

TEST_F(FDetailsViewTest, ShowsCategoriesOfTheActorAndOfItsComponents)
{
	SelectOne();
	Grab(View, "details-every");
	EXPECT_EQ(GetNames(),
		QStringList({"Test", "Flag", "Number", "Fraction", "Text", "Label", "Inner", "Numbers", "Structs", "Actors",
			"Texture", "Translated", "Passing", "Test", "Strength", "Notes"}));
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("3"));
	EXPECT_TRUE(GetValue<QCheckBox>("bFlag")->isChecked());
	EXPECT_EQ(GetValue<QLineEdit>("Number")->accessibleName(), QStringLiteral("Number"));
	EXPECT_EQ(FindRow("Number")->accessibleName(), QStringLiteral("Number"));
}

TEST_F(FDetailsViewTest, TellsNameAndPathOfARow)
{
	SelectOne();
	Open(GetLine("Inner"));
	EXPECT_TRUE(FindRow("Inner.Count")->toolTip().contains(QStringLiteral("Count<br>Inner.Count")));
}

TEST_F(FDetailsViewTest, CountsSelectedActors)
{
	AActor* First = Spawn<AEveryPropertyActor>();
	AActor* Second = Spawn<AEveryPropertyActor>();
	Select({First, Second});
	EXPECT_TRUE(ShowsTitle(QStringLiteral("2 actors selected")));
}

TEST_F(FDetailsViewTest, ShortensATitleThatIsTooLong)
{
	SelectOne();
	View.resize(120, 300);
	QCoreApplication::processEvents();
	EXPECT_EQ(View.width(), 120);
	EXPECT_FALSE(ShowsTitle(QStringLiteral("EveryPropertyActor_0")));
	const QList<QLabel*> Labels = View.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
	EXPECT_TRUE(std::any_of(Labels.begin(), Labels.end(),
		[](const QLabel* Label) { return Label->text().endsWith(QChar(0x2026)) && Label->text().startsWith(u'E'); }));
	Grab(View, "details-narrow");
}

TEST_F(FDetailsViewTest, SetsWhatIsTypedInOneStep)
{
	AEveryPropertyActor& Actor = SelectOne();
	Type("Text", QStringLiteral("Cam"));
	Step();
	EXPECT_TRUE(Actor.Text.IsEmpty());
	QTest::keyClick(GetValue<QLineEdit>("Text"), Qt::Key_Return);
	EXPECT_TRUE(Actor.Text.Equals(TEXT("Cam")));
	EXPECT_EQ(GetUndo(), QStringLiteral("Edit Text"));
	GEditor->UndoTransaction();
	EXPECT_TRUE(Actor.Text.IsEmpty());
	EXPECT_EQ(GetUndo(), QString());
	Beat();
	EXPECT_EQ(GetValue<QLineEdit>("Text")->text(), QString());
}

TEST_F(FDetailsViewTest, ShowsWhatWasBeforeWhenANumberIsNone)
{
	AEveryPropertyActor& Actor = SelectOne();
	Type("Number", QStringLiteral("7x"));
	QTest::keyClick(GetValue<QLineEdit>("Number"), Qt::Key_Return);
	Step();
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("3"));
}

TEST_F(FDetailsViewTest, TicksABox)
{
	AEveryPropertyActor& Actor = SelectOne();
	QTest::mouseClick(GetValue<QCheckBox>("bFlag"), Qt::LeftButton);
	EXPECT_FALSE(Actor.bFlag);
	Step();
	EXPECT_FALSE(GetValue<QCheckBox>("bFlag")->isChecked());
	QTest::keyClick(GetValue<QCheckBox>("bFlag"), Qt::Key_Space);
	Step();
	EXPECT_TRUE(Actor.bFlag);
	EXPECT_TRUE(GetValue<QCheckBox>("bFlag")->isChecked());
}

TEST_F(FDetailsViewTest, ShowsWhatTwoActorsDoNotShare)
{
	AEveryPropertyActor* First = Spawn<AEveryPropertyActor>();
	AEveryPropertyActor* Second = Spawn<AEveryPropertyActor>();
	Second->Number = 4;
	Second->bFlag = false;
	Select({First, Second});
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("Multiple Values"));
	EXPECT_EQ(GetValue<QCheckBox>("bFlag")->checkState(), Qt::PartiallyChecked);
	Grab(View, "details-mixed");
	QTest::mouseClick(GetValue<QCheckBox>("bFlag"), Qt::LeftButton);
	EXPECT_TRUE(First->bFlag && Second->bFlag);
	Type("Number", QStringLiteral("9"));
	QTest::keyClick(GetValue<QLineEdit>("Number"), Qt::Key_Return);
	EXPECT_EQ(First->Number + Second->Number, 18);
}

TEST_F(FDetailsViewTest, FollowsChangesFourTimesASecond)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.Number = 12;
	Advance(0.2);
	Step();
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("3"));
	Advance(0.05);
	Step();
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("12"));
	Actor.Number = 13;
	View.Invalidate();
	Step();
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("13"));
}

TEST_F(FDetailsViewTest, FollowsAtOnceWhatTheUserDoes)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.Number = 12;
	QTest::mouseClick(GetValue<QCheckBox>("bFlag"), Qt::LeftButton);
	Step();
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("12"));
	// Where the focus is, each frame.
	Actor.bFlag = true;
	Step();
	EXPECT_TRUE(GetValue<QCheckBox>("bFlag")->isChecked());
}

TEST_F(FDetailsViewTest, ShowsAnElementThatWasAdded)
{
	AEveryPropertyActor& Actor = SelectOne();
	EXPECT_EQ(FindRow("Numbers")->isEnabled(), true);
	Actor.Numbers.Add(5);
	Beat();
	Open(FindRow("Numbers"));
	ASSERT_NE(FindRow("Numbers[0]"), nullptr);
	EXPECT_EQ(GetValue<QLineEdit>("Numbers[0]")->text(), QStringLiteral("5"));
	Actor.Numbers.Empty();
	Beat();
	EXPECT_EQ(FindRow("Numbers[0]"), nullptr);
	EXPECT_FALSE(GetNames().contains(QStringLiteral("0")));
}

TEST_F(FDetailsViewTest, IsEmptyWithoutThePropertyEditor)
{
	AActor* Actor = Spawn<AEveryPropertyActor>();
	FModuleManager::Get().UnloadModule("PropertyEditor");
	Select({Actor});
	EXPECT_TRUE(GetNames().isEmpty());
	EXPECT_EQ(GetMessage(), QStringLiteral("Nothing to show."));
	FModuleManager::Get().LoadModuleChecked("PropertyEditor");
}

TEST_F(FDetailsViewTest, SurvivesThePropertyEditorsUnloadingWhileItShowsRows)
{
	SelectOne();
	FModuleManager::Get().UnloadModule("PropertyEditor");
	Beat();
	Beat();
	EXPECT_TRUE(ShowsTitle(QStringLiteral("EveryPropertyActor_0")));
	Select({});
	EXPECT_TRUE(GetNames().isEmpty());
	FModuleManager::Get().LoadModuleChecked("PropertyEditor");
}

TEST_F(FDetailsViewTest, SurvivesThePluginsUnloadingWhileItShowsItsRows)
{
	Select({Spawn<AZAVSpoutReceiverManager>()});
	Open(GetLine("Spout Receivers"));
	Open(GetLine("0"));
	Select({Spawn<AZAVCineCamCapture>()});
	Open(GetLine("Advanced"));
	Open(GetLine("General Show Flags"));
	Editor.ClosePanels();
	FModuleManager::Get().UnloadModule("QuillonEditor");
	Step();
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Texture Target")));
	FModuleManager::Get().LoadModuleChecked("QuillonEditor");
}

TEST_F(FDetailsViewTest, ShowsNothingMoreOfADestroyedActor)
{
	AEveryPropertyActor& Actor = SelectOne();
	GetValue<QLineEdit>("Text")->setFocus();
	Editor.GetWorld(0)->DestroyActor(&Actor);
	Step();
	Beat();
	EXPECT_TRUE(GetNames().isEmpty());
	EXPECT_EQ(GetMessage(), QStringLiteral("Select an actor to see its details."));
}

TEST_F(FDetailsViewTest, DoesNotLookWhileItIsHidden)
{
	View.hide();
	Select({Spawn<AEveryPropertyActor>()});
	Beat();
	EXPECT_FALSE(Editor.GetDetails().IsBuilt());
	View.show();
	Step();
	EXPECT_TRUE(Editor.GetDetails().IsBuilt());
}

/** The same for a script. */
class FDetailsViewScriptTest : public FDetailsViewFixture
{
protected:
	FDetailsViewScriptTest() { Context.Use = EEditorViewUse::Script; }
};

TEST_F(FDetailsViewScriptTest, HasNoRowsMadeThatTheScriptHasNotAskedFor)
{
	Select({Spawn<AEveryPropertyActor>()});
	Beat();
	View.ShowNow();
	EXPECT_FALSE(Editor.GetDetails().IsBuilt());
	EXPECT_TRUE(GetNames().isEmpty());
}

TEST_F(FDetailsViewScriptTest, ShowsTheRowsThatTheScriptHasAskedForWhenItIsToldTo)
{
	AEveryPropertyActor* Actor = Spawn<AEveryPropertyActor>();
	Select({Actor});
	Editor.GetDetails().GetCategories();
	Beat();
	EXPECT_TRUE(GetNames().isEmpty());
	View.ShowNow();
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("3"));
	// Not even where an array has grown: rows would be made for it.
	Actor->Numbers.Add(5);
	Actor->Number = 4;
	const uint32 Version = Editor.GetDetails().GetVersion();
	View.ShowNow();
	EXPECT_EQ(Editor.GetDetails().GetVersion(), Version);
	EXPECT_EQ(GetValue<QLineEdit>("Number")->text(), QStringLiteral("4"));
}

TEST_F(FDetailsViewTest, FollowsASelectionThatNobodyTellsOf)
{
	FActorEdits::SelectOnly({});
	Frame(View);
	AActor* Actor =
		FEditorViews::GetLevelWorld()->SpawnActor(FLevelProperties::FindActorClass(TEXT("ZAVCineCamCapture")));
	GEditor->SelectActor(Actor, true, false);
	Frame(View);
	EXPECT_EQ(View.GetMessage(), QString());
	GEditor->SelectActor(Actor, false, false);
	Frame(View);
	EXPECT_NE(View.GetMessage(), QString());
}
