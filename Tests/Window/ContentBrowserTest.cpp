// Copyright Corvane. MIT License.
#include "WindowFixture.h"

#include <QtTest/QTest>

#include "Editor.h"
#include "EditorAssets.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Modules/ModuleManager.h"
#include "Panels/ContentBrowser.h"
#include "TestEditor.h"
#include "UObject/Package.h"

namespace
{
	class FContentBrowserTest : public FWindowFixture
	{
	protected:
		FContentBrowserTest()
		{
			ShowPanel(Panel, 480, 220);
			Frame(Panel);
		}

		static UTextureRenderTarget2D& Make(const char* Path)
		{
			auto* Asset = static_cast<UTextureRenderTarget2D*>(
				FEditorAssets::Make(FName(Path), UTextureRenderTarget2D::StaticClass()));
			Asset->GetOutermost()->SetDirtyFlag(false);
			return *Asset;
		}
		static void MakeMany(int Number)
		{
			for (int Index = 0; Index < Number; ++Index)
			{
				Make(qPrintable(QStringLiteral("/Game/Many/Asset%1").arg(Index)));
			}
		}
		static void Sync(UObject* Asset, bool bFront)
		{
			TArray<UObject*> Assets = {Asset};
			GEditor->SyncBrowserToObjects(Assets, bFront);
		}

		QListView& GetView() { return *Panel.findChild<QListView*>(); }
		QLineEdit& GetSearch() { return *Panel.findChild<QLineEdit*>(); }
		QModelIndex GetIndex(int Row) { return GetView().model()->index(Row, 0); }
		QString GetText(int Row) { return GetIndex(Row).data().toString(); }
		int GetNumTiles() { return GetView().model()->rowCount(); }
		QString GetPath()
		{
			for (const QLabel* Label : Panel.findChildren<QLabel*>())
			{
				if (Label->accessibleName() == QStringLiteral("Path"))
				{
					return Label->text();
				}
			}
			return QStringLiteral("no label");
		}
		QString GetNote()
		{
			const auto* Note = GetView().viewport()->findChild<QLabel*>();
			return Note->isVisible() ? Note->text() : QString();
		}
		void Click(int Row, Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
		{
			QTest::mouseClick(
				GetView().viewport(), Qt::LeftButton, Modifiers, GetView().visualRect(GetIndex(Row)).center());
		}
		bool IsInSight(int Row) { return GetView().viewport()->rect().intersects(GetView().visualRect(GetIndex(Row))); }
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

		FContentBrowser Panel{Context};
	};
}

TEST_F(FContentBrowserTest, SaysThatThereIsNothingYet)
{
	EXPECT_EQ(GetNote(), QStringLiteral("No assets yet"));
	EXPECT_EQ(GetPath(), QString());
	Grab(Panel, "content-empty");
	Make("/Game/CineStream/Main");
	Frame(Panel);
	EXPECT_EQ(GetNote(), QString());
	EXPECT_EQ(GetPath(), QStringLiteral("1 asset"));
}

TEST_F(FContentBrowserTest, ShowsAssetsInTheOrderOfTheirMaking)
{
	Make("/Game/CineStream/Zebra");
	Make("/Game/CineStream/Ape");
	Make("/Game/CineStream/ARatherLongNameOfATargetThatDoesNotFit");
	Frame(Panel);
	EXPECT_EQ(GetText(0), QStringLiteral("Zebra"));
	EXPECT_EQ(GetText(1), QStringLiteral("Ape"));
	EXPECT_EQ(GetPath(), QStringLiteral("3 assets"));
	EXPECT_FALSE(GetIndex(0).data(Qt::DecorationRole).value<QIcon>().isNull());
	EXPECT_TRUE(GetIndex(0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("/Game/CineStream/Zebra")));
	EXPECT_TRUE(GetIndex(0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("500 × 500")));
	Click(1);
	Grab(Panel, "content");
}

TEST_F(FContentBrowserTest, MarksWhatIsNotSaved)
{
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	Make("/Game/Other");
	Frame(Panel);
	Click(0);
	Asset.GetOutermost()->SetDirtyFlag(true);
	int NumChanges = 0;
	QObject::connect(GetView().model(), &QAbstractItemModel::dataChanged, &Panel, [&NumChanges] { ++NumChanges; });
	Frame(Panel);
	EXPECT_EQ(NumChanges, 1);
	EXPECT_EQ(GetText(0), QStringLiteral("Main*"));
	EXPECT_EQ(GetText(1), QStringLiteral("Other"));
	EXPECT_EQ(GetSelectedRows(), QList<int>{0});
	FEditorAssets::ClearDirtyFlags();
	Frame(Panel);
	EXPECT_EQ(GetText(0), QStringLiteral("Main"));
	EXPECT_EQ(NumChanges, 2);
	Frame(Panel);
	EXPECT_EQ(NumChanges, 2);
}

TEST_F(FContentBrowserTest, DrawsTheSizeOfATarget)
{
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	Frame(Panel);
	const QImage Before = GetView().grab(GetView().visualRect(GetIndex(0))).toImage();
	Asset.SizeX = 1920;
	Asset.SizeY = 1080;
	Frame(Panel);
	EXPECT_NE(GetView().grab(GetView().visualRect(GetIndex(0))).toImage(), Before);
	EXPECT_TRUE(GetIndex(0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("1920 × 1080")));
	Grab(Panel, "content-size");
}

TEST_F(FContentBrowserTest, ShowsThePathOfWhatIsSelected)
{
	Make("/Game/CineStream/Main");
	Make("/Game/CineStream/Sub/Other");
	Frame(Panel);
	Click(1);
	EXPECT_EQ(GetPath(), QStringLiteral("/Game/CineStream/Sub/Other"));
	Click(0, Qt::ControlModifier);
	EXPECT_EQ(GetPath(), QStringLiteral("2 assets selected"));
	GetView().clearSelection();
	EXPECT_EQ(GetPath(), QStringLiteral("2 assets"));
	GetView().setFocus();
	GetView().setCurrentIndex(GetIndex(1));
	QTest::keyClick(&GetView(), Qt::Key_Left);
	EXPECT_EQ(GetPath(), QStringLiteral("/Game/CineStream/Main"));
}

TEST_F(FContentBrowserTest, LongPathsDoNotWidenIt)
{
	Make(qPrintable(QStringLiteral("/Game/%1/Main").arg(QString(400, u'w'))));
	Frame(Panel);
	Panel.resize(200, 200);
	Click(0);
	Frame(Panel);
	EXPECT_EQ(Panel.width(), 200);
	EXPECT_LE(Panel.minimumSizeHint().width(), 200);
}

TEST_F(FContentBrowserTest, FindsByNameAndClass)
{
	Make("/Game/Main");
	Make("/Game/Other");
	Frame(Panel);
	GetSearch().setFocus();
	QTest::keyClicks(&GetSearch(), QStringLiteral("MAI rendertarget"));
	ASSERT_EQ(GetNumTiles(), 1);
	EXPECT_EQ(GetText(0), QStringLiteral("Main"));
	QTest::keyClick(&GetSearch(), Qt::Key_Down);
	EXPECT_TRUE(GetView().hasFocus());
	EXPECT_EQ(GetPath(), QStringLiteral("/Game/Main"));
	GetSearch().setText(QStringLiteral("nothing like it"));
	EXPECT_EQ(GetNote(), QStringLiteral("No matching assets"));
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	EXPECT_EQ(GetNumTiles(), 2);
}

TEST_F(FContentBrowserTest, ShowsWhatTheEditorIsAskedToShow)
{
	MakeMany(100);
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	int NumFront = 0;
	Panel.OnFrontRequested = [&NumFront] { ++NumFront; };
	Frame(Panel);
	ASSERT_FALSE(IsInSight(100));
	// Asked for before the panel has seen the asset.
	Sync(&Make("/Game/New"), false);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{101});
	EXPECT_EQ(NumFront, 0);
	GetView().scrollToTop();
	Sync(&Asset, true);
	Frame(Panel);
	EXPECT_EQ(GetSelectedRows(), QList<int>{100});
	EXPECT_EQ(GetView().currentIndex().row(), 100);
	EXPECT_TRUE(IsInSight(100));
	EXPECT_EQ(NumFront, 1);
	EXPECT_EQ(GetPath(), QStringLiteral("/Game/Main"));
	Frame(Panel);
	EXPECT_EQ(NumFront, 1);
	// Once more, after the user has looked elsewhere.
	GetView().scrollToTop();
	Sync(&Asset, false);
	Frame(Panel);
	EXPECT_TRUE(IsInSight(100));
}

TEST_F(FContentBrowserTest, ForgetsASearchThatHidesWhatItShallShow)
{
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	Make("/Game/Other");
	Frame(Panel);
	GetSearch().setText(QStringLiteral("other"));
	Sync(&Asset, true);
	Frame(Panel);
	EXPECT_EQ(GetSearch().text(), QString());
	EXPECT_EQ(GetSelectedRows(), QList<int>{0});
	GetSearch().setText(QStringLiteral("main"));
	Sync(&Asset, true);
	Frame(Panel);
	EXPECT_EQ(GetSearch().text(), QStringLiteral("main"));
}

TEST_F(FContentBrowserTest, KeepsItsSelectionWhenAskedForWhatIsNoAssetOrGone)
{
	Make("/Game/Main");
	UTextureRenderTarget2D& Gone = Make("/Game/Gone");
	Frame(Panel);
	Click(0);
	Sync(nullptr, false);
	Sync(&Gone, false);
	FEditorAssets::RemoveAll();
	Make("/Game/Next");
	Frame(Panel);
	EXPECT_EQ(GetNumTiles(), 1);
	EXPECT_EQ(GetSelectedRows(), QList<int>{});
	EXPECT_EQ(GetText(0), QStringLiteral("Next"));
}

TEST_F(FContentBrowserTest, KeepsSelectionAndScrollWhenAssetsAreAdded)
{
	MakeMany(60);
	Frame(Panel);
	GetView().scrollTo(GetIndex(30), QAbstractItemView::PositionAtTop);
	Click(30);
	const int Scroll = GetView().verticalScrollBar()->value();
	ASSERT_GT(Scroll, 0);
	Make("/Game/New");
	Frame(Panel);
	EXPECT_EQ(GetNumTiles(), 61);
	EXPECT_EQ(GetSelectedRows(), QList<int>{30});
	EXPECT_EQ(GetView().verticalScrollBar()->value(), Scroll);
}

TEST_F(FContentBrowserTest, TellsAnAssetFromOneOfTheSameName)
{
	Make("/Game/Main").SizeX = 64;
	Frame(Panel);
	FEditorAssets::RemoveAll();
	Editor.Tick();
	Make("/Game/Main").SizeX = 128;
	Frame(Panel);
	ASSERT_EQ(GetNumTiles(), 1);
	EXPECT_TRUE(GetIndex(0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("128 ×")));
}

TEST_F(FContentBrowserTest, IsEmptyWithoutTheRegistry)
{
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	Frame(Panel);
	FModuleManager::Get().UnloadModule("AssetRegistry");
	Frame(Panel);
	EXPECT_EQ(GetNumTiles(), 0);
	EXPECT_EQ(GetNote(), QStringLiteral("No assets yet"));
	FModuleManager::Get().LoadModule("AssetRegistry");
	// The new registry does not know it, so nobody would take it away.
	Asset.ClearFlags(RF_Public | RF_Standalone);
	Asset.MarkPendingKill();
}

TEST_F(FContentBrowserTest, StopsListeningWhenItGoes)
{
	UTextureRenderTarget2D& Asset = Make("/Game/Main");
	int NumFront = 0;
	{
		FContentBrowser Other(Context);
		Other.OnFrontRequested = [&NumFront] { ++NumFront; };
		Sync(&Asset, true);
		Other.Poll();
	}
	Sync(&Asset, true);
	Frame(Panel);
	EXPECT_EQ(NumFront, 1);
}
