// Copyright Corvane. MIT License.
#include "WindowFixture.h"

#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Panels/Outliner.h"
#include "TestEditor.h"
#include "UObject/Class.h"
#include "WindowText.h"

namespace
{
	using FActors = std::vector<AActor*>;

	class FOutlinerTest : public FWindowFixture
	{
	protected:
		FOutlinerTest()
		{
			ShowPanel(Panel, 320, 300);
			Frame(Panel);
			Handle = USelection::SelectionChangedEvent.AddLambda([this](UObject*) { ++NumChanges; });
		}
		~FOutlinerTest() override { USelection::SelectionChangedEvent.Remove(Handle); }

		AActor& Spawn(const char* Name, const TCHAR* ClassName = TEXT("ZAVSpoutSenderManager"))
		{
			FActorSpawnParameters Parameters;
			Parameters.Name = FName(Name);
			UClass* Class = FindObject<UClass>(ANY_PACKAGE, ClassName);
			return *Editor.GetWorld(0)->SpawnActor(Class, nullptr, nullptr, Parameters);
		}
		FActors SpawnMany(int Number)
		{
			FActors Actors;
			for (int Index = 0; Index < Number; ++Index)
			{
				Actors.push_back(&Spawn(qPrintable(QStringLiteral("Many%1").arg(Index))));
			}
			return Actors;
		}

		static FActors GetSelected()
		{
			FActors Selected;
			for (int32 Index = 0; Index < GEditor->GetSelectedActors()->Num(); ++Index)
			{
				Selected.push_back(static_cast<AActor*>(GEditor->GetSelectedActors()->GetSelectedObject(Index)));
			}
			return Selected;
		}

		QTreeView& GetView() { return *Panel.findChild<QTreeView*>(); }
		QLineEdit& GetSearch() { return *Panel.findChild<QLineEdit*>(); }
		QString GetText(int Row, int Column) { return GetIndex(Row, Column).data().toString(); }
		QModelIndex GetIndex(int Row, int Column = 0) { return GetView().model()->index(Row, Column); }
		int GetNumRows() { return GetView().model()->rowCount(); }
		QString GetFooter() { return FindLabel(QStringLiteral("Number of actors")); }
		QString FindLabel(const QString& Name)
		{
			for (const QLabel* Label : Panel.findChildren<QLabel*>())
			{
				if (Label->accessibleName() == Name)
				{
					return Label->text();
				}
			}
			return QString();
		}
		/** What stands in the middle of the list, if it can be seen. */
		QString GetNote()
		{
			const auto* Note = GetView().viewport()->findChild<QLabel*>();
			return Note->isVisible() ? Note->text() : QString();
		}
		QList<int> GetSelectedRows()
		{
			QList<int> Rows;
			for (const QModelIndex& Index : GetView().selectionModel()->selectedRows())
			{
				Rows.append(Index.row());
			}
			std::sort(Rows.begin(), Rows.end());
			return Rows;
		}
		void Click(int Row, Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
		{
			QTest::mouseClick(
				GetView().viewport(), Qt::LeftButton, Modifiers, GetView().visualRect(GetIndex(Row)).center());
		}
		QString GetTopLabel() { return GetView().indexAt(QPoint(1, 1)).data().toString(); }

		FOutliner Panel{Context};
		int NumChanges = 0;
		FDelegateHandle Handle;
	};
}

TEST_F(FOutlinerTest, ListsLabelAndTypeInTheLevelsOrder)
{
	Spawn("Zebra");
	Spawn("Ape & Co", TEXT("ZAVCineCamCapture"));
	Spawn("Ox\nCart", TEXT("Actor"));
	Frame(Panel);
	Grab(Panel, "outliner");
	ASSERT_EQ(GetNumRows(), 3);
	EXPECT_EQ(GetText(0, 0), QStringLiteral("Zebra"));
	EXPECT_EQ(GetText(0, 1), QStringLiteral("ZAVSpoutSenderManager"));
	EXPECT_EQ(GetText(1, 0), QStringLiteral("Ape & Co"));
	EXPECT_EQ(GetText(1, 1), QStringLiteral("ZAVCineCamCapture"));
	EXPECT_EQ(GetText(2, 0), QStringLiteral("Ox Cart"));
	EXPECT_FALSE(GetIndex(0).data(Qt::DecorationRole).value<QIcon>().isNull());
	EXPECT_FALSE(GetIndex(0, 1).data(Qt::DecorationRole).isValid());
	EXPECT_EQ(GetView().model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Label"));
	EXPECT_EQ(GetView().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Type"));
	EXPECT_EQ(GetFooter(), QStringLiteral("3 actors"));
}

TEST_F(FOutlinerTest, SaysThatALevelIsEmpty)
{
	EXPECT_EQ(GetFooter(), QStringLiteral("0 actors"));
	EXPECT_EQ(GetNote(), QStringLiteral("This level has no actors"));
	Grab(Panel, "outliner-empty");
	Spawn("One");
	Frame(Panel);
	EXPECT_EQ(GetFooter(), QStringLiteral("1 actor"));
	EXPECT_EQ(GetNote(), QString());
	GEditor->NewMap();
	Frame(Panel);
	EXPECT_EQ(GetNumRows(), 0);
	EXPECT_EQ(GetNote(), QStringLiteral("This level has no actors"));
}

TEST_F(FOutlinerTest, SelectsWhatIsClicked)
{
	const FActors Actors = SpawnMany(5);
	Frame(Panel);
	Click(1);
	EXPECT_EQ(GetSelected(), FActors{Actors[1]});
	EXPECT_EQ(NumChanges, 1);
	Click(3, Qt::ShiftModifier);
	EXPECT_EQ(GetSelected(), (FActors{Actors[1], Actors[2], Actors[3]}));
	Click(2, Qt::ControlModifier);
	EXPECT_EQ(GetSelected(), (FActors{Actors[1], Actors[3]}));
	EXPECT_EQ(GetFooter(), QStringLiteral("5 actors (2 selected)"));
	EXPECT_EQ(NumChanges, 3);
	Frame(Panel);
	EXPECT_EQ(NumChanges, 3);
	EXPECT_EQ(GetSelectedRows(), (QList<int>{1, 3}));
	Grab(Panel, "outliner-selected");
}

TEST_F(FOutlinerTest, SelectsByKeyboard)
{
	const FActors Actors = SpawnMany(3);
	Frame(Panel);
	GetSearch().setFocus();
	QTest::keyClick(&GetSearch(), Qt::Key_Down);
	EXPECT_TRUE(GetView().hasFocus());
	EXPECT_EQ(GetSelected(), FActors{Actors[0]});
	QTest::keyClick(&GetView(), Qt::Key_Down);
	EXPECT_EQ(GetSelected(), FActors{Actors[1]});
	QTest::keyClick(&GetView(), Qt::Key_Down, Qt::ShiftModifier);
	EXPECT_EQ(GetSelected(), (FActors{Actors[1], Actors[2]}));
	QTest::keyClick(&GetView(), Qt::Key_A, Qt::ControlModifier);
	EXPECT_EQ(GetSelected(), Actors);
	EXPECT_EQ(GetSearch().accessibleName(), QStringLiteral("Search actors"));
	EXPECT_EQ(GetView().accessibleName(), QStringLiteral("Actors"));
}

TEST_F(FOutlinerTest, FollowsTheEditorsSelection)
{
	const FActors Actors = SpawnMany(200);
	Frame(Panel);
	FActorEdits::SelectOnly({Actors[150], Actors[151], Actors[153]});
	NumChanges = 0;
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), (QList<int>{150, 151, 153}));
	EXPECT_EQ(GetFooter(), QStringLiteral("200 actors (3 selected)"));
	EXPECT_TRUE(GetView().viewport()->rect().intersects(GetView().visualRect(GetIndex(150))));
	EXPECT_EQ(GetView().currentIndex().row(), 150);
	FActorEdits::SelectOnly({});
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{});
	EXPECT_EQ(GetFooter(), QStringLiteral("200 actors"));
	// Looking changes nothing.
	EXPECT_EQ(NumChanges, 1);
}

TEST_F(FOutlinerTest, FollowsASelectionThatNobodyWasToldOf)
{
	const FActors Actors = SpawnMany(3);
	Frame(Panel);
	GEditor->SelectActor(Actors[1], true, false);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{1});
	GEditor->SelectNone(false, true, false);
	GEditor->SelectActor(Actors[2], true, false);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{2});
	Editor.GetWorld(0)->DestroyActor(Actors[2]);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{});
	EXPECT_EQ(GetFooter(), QStringLiteral("2 actors"));
}

TEST_F(FOutlinerTest, FindsByLabelAndTypeWhateverTheCase)
{
	Spawn("MainCamera", TEXT("ZAVCineCamCapture"));
	Spawn("Other", TEXT("ZAVCineCamCapture"));
	Spawn("MainSender");
	Frame(Panel);
	GetSearch().setFocus();
	QTest::keyClicks(&GetSearch(), QStringLiteral("mAIN"));
	EXPECT_EQ(GetNumRows(), 2);
	EXPECT_EQ(GetText(1, 0), QStringLiteral("MainSender"));
	EXPECT_EQ(GetFooter(), QStringLiteral("Showing 2 of 3 actors"));
	QTest::keyClicks(&GetSearch(), QStringLiteral(" cinecam"));
	ASSERT_EQ(GetNumRows(), 1);
	EXPECT_EQ(GetText(0, 0), QStringLiteral("MainCamera"));
	QTest::keyClicks(&GetSearch(), QStringLiteral("x"));
	EXPECT_EQ(GetNumRows(), 0);
	EXPECT_EQ(GetNote(), QStringLiteral("No matching actors"));
	Grab(Panel, "outliner-none");
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	EXPECT_EQ(GetNumRows(), 3);
	EXPECT_EQ(GetNote(), QString());
	EXPECT_EQ(GetFooter(), QStringLiteral("3 actors"));
}

TEST_F(FOutlinerTest, SearchingLeavesTheSelectionAlone)
{
	const FActors Actors = SpawnMany(12);
	Frame(Panel);
	FActorEdits::SelectOnly({Actors[3], Actors[11]});
	Frame(Panel);
	NumChanges = 0;
	GetSearch().setText(QStringLiteral("Many11"));
	EXPECT_EQ(GetSelectedRows(), QList<int>{0});
	EXPECT_EQ(GetFooter(), QStringLiteral("Showing 1 of 12 actors (2 selected)"));
	GetSearch().setText(QString());
	EXPECT_EQ(GetSelectedRows(), (QList<int>{3, 11}));
	EXPECT_EQ(GetSelected(), (FActors{Actors[3], Actors[11]}));
	EXPECT_EQ(NumChanges, 0);
}

TEST_F(FOutlinerTest, ListsNewActorsThatASearchFinds)
{
	Spawn("First");
	Frame(Panel);
	GetSearch().setText(QStringLiteral("Second"));
	EXPECT_EQ(GetNumRows(), 0);
	Spawn("Third");
	Spawn("Second");
	Frame(Panel);
	ASSERT_EQ(GetNumRows(), 1);
	EXPECT_EQ(GetText(0, 0), QStringLiteral("Second"));
	EXPECT_EQ(GetNote(), QString());
}

TEST_F(FOutlinerTest, KeepsScrollAndSelectionWhenActorsComeAndGo)
{
	const FActors Actors = SpawnMany(300);
	Frame(Panel);
	GetView().scrollTo(GetIndex(100), QAbstractItemView::PositionAtTop);
	Click(102);
	Frame(Panel);
	ASSERT_EQ(GetTopLabel(), QStringLiteral("Many100"));
	Spawn("Late");
	Editor.GetWorld(0)->DestroyActor(Actors[5]);
	Editor.GetWorld(0)->DestroyActor(Actors[250]);
	Frame(Panel);
	EXPECT_EQ(GetNumRows(), 299);
	EXPECT_EQ(GetText(298, 0), QStringLiteral("Late"));
	EXPECT_EQ(GetSelected(), FActors{Actors[102]});
	EXPECT_EQ(GetSelectedRows(), QList<int>{101});
	Editor.GetWorld(0)->DestroyActor(Actors[6]);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{100});
	EXPECT_EQ(GetView().currentIndex().row(), 100);
	EXPECT_EQ(GetTopLabel(), QStringLiteral("Many100"));
}

TEST_F(FOutlinerTest, StaysWhereItIsWhileTheSelectionIsOutOfSight)
{
	const FActors Actors = SpawnMany(300);
	Frame(Panel);
	FActorEdits::SelectOnly({Actors[0]});
	Frame(Panel);
	GetView().scrollTo(GetIndex(100), QAbstractItemView::PositionAtTop);
	Spawn("Late");
	Frame(Panel);
	EXPECT_EQ(GetTopLabel(), QStringLiteral("Many100"));
	EXPECT_EQ(GetSelectedRows(), QList<int>{0});
}

TEST_F(FOutlinerTest, FollowsUndoAndRedo)
{
	Spawn("First");
	AActor* Placed = FActorEdits::Place(AActor::StaticClass(), FVector(), FRotator());
	Frame(Panel);
	EXPECT_EQ(GetNumRows(), 2);
	EXPECT_EQ(GetSelectedRows(), QList<int>{1});
	GEditor->UndoTransaction();
	Frame(Panel);
	EXPECT_EQ(GetNumRows(), 1);
	EXPECT_EQ(GetFooter(), QStringLiteral("1 actor"));
	GEditor->RedoTransaction();
	Frame(Panel);
	ASSERT_EQ(GetNumRows(), 2);
	EXPECT_EQ(GetText(1, 0), FWindowText::ToQt(Placed->GetName()));
}

TEST_F(FOutlinerTest, AsksForTheFocusByDoubleClickAndEnter)
{
	const FActors Actors = SpawnMany(3);
	Frame(Panel);
	int NumAsked = 0;
	Panel.OnFocusRequested = [&NumAsked] { ++NumAsked; };
	Click(1);
	EXPECT_EQ(NumAsked, 0);
	QTest::mouseDClick(
		GetView().viewport(), Qt::LeftButton, Qt::NoModifier, GetView().visualRect(GetIndex(1)).center());
	EXPECT_EQ(NumAsked, 1);
	EXPECT_EQ(GetSelected(), FActors{Actors[1]});
	QTest::keyClick(&GetView(), Qt::Key_Return);
	EXPECT_EQ(NumAsked, 2);
}

TEST_F(FOutlinerTest, ToleratesAnActorThatWentBeforeTheListFollowed)
{
	const FActors Actors = SpawnMany(3);
	Frame(Panel);
	Editor.GetWorld(0)->DestroyActor(Actors[1]);
	Click(1);
	EXPECT_EQ(GetSelected(), FActors{});
	Click(0);
	Click(2, Qt::ShiftModifier);
	EXPECT_EQ(GetSelected(), (FActors{Actors[0], Actors[2]}));
	Editor.Tick();
	GetView().grab();
	Frame(Panel);
	EXPECT_EQ(GetNumRows(), 2);
	EXPECT_EQ(GetSelectedRows(), (QList<int>{0, 1}));
}

TEST_F(FOutlinerTest, FitsIntoANarrowPanel)
{
	Spawn("AVeryLongNameOfAnActorThatDoesNotFitIntoANarrowPanelByAnyMeans");
	Frame(Panel);
	Panel.resize(180, 200);
	Frame(Panel);
	Grab(Panel, "outliner-narrow");
	EXPECT_EQ(Panel.width(), 180);
	EXPECT_FALSE(GetView().horizontalScrollBar()->isVisible());
	EXPECT_GE(GetView().columnWidth(0), 60);
}

TEST_F(FOutlinerTest, ListsTenThousandActors)
{
	UClass* Class = FindObject<UClass>(ANY_PACKAGE, TEXT("ZAVSpoutSenderManager"));
	for (int Index = 0; Index < 10000; ++Index)
	{
		Editor.GetWorld(0)->SpawnActor(Class);
	}
	AActor& Last = Spawn("Last");
	const auto Measure = [](const char* What, const std::function<void()>& Work)
	{
		QElapsedTimer Timer;
		Timer.start();
		Work();
		std::printf("%s: %.2f ms\n", What, static_cast<double>(Timer.nsecsElapsed()) / 1.0e6);
	};
	Measure("outliner fills", [this] { Panel.Poll(); });
	Measure("outliner polls", [this] { Panel.Poll(); });
	Measure("outliner searches", [this] { GetSearch().setText(QStringLiteral("last")); });
	EXPECT_EQ(GetNumRows(), 1);
	Measure("outliner forgets the search", [this] { GetSearch().setText(QString()); });
	EXPECT_EQ(GetNumRows(), 10001);
	Measure("outliner shows one selected",
		[&]
		{
			FActorEdits::SelectOnly({&Last});
			Panel.Poll();
		});
	EXPECT_EQ(GetSelectedRows(), QList<int>{10000});
	Measure("outliner loses one",
		[&]
		{
			Editor.GetWorld(0)->DestroyActor(&Last);
			Panel.Poll();
		});
	EXPECT_EQ(GetNumRows(), 10000);
	Click(0);
	const QItemSelection Many(GetIndex(0), GetIndex(1999, 1));
	Measure("outliner selects two thousand",
		[&] { GetView().selectionModel()->select(Many, QItemSelectionModel::ClearAndSelect); });
	Measure("outliner polls with them", [this] { Panel.Poll(); });
	EXPECT_EQ(GetFooter(), QStringLiteral("10000 actors (2000 selected)"));
}
