// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QTemporaryDir>
#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Editor.h"
#include "EditorAssets.h"
#include "Engine/Level.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "FileActions.h"
#include "GameFramework/Actor.h"
#include "LevelToolBar.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "WindowFixture.h"

namespace
{
	class FFileActionsTest : public FWindowFixture
	{
	protected:
		using EAnswer = FFileActions::EAnswer;

		FFileActionsTest() : Settings(Folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
		{
			FileMenu = Window.menuBar()->addMenu(QStringLiteral("File"));
			EditMenu = Window.menuBar()->addMenu(QStringLiteral("Edit"));
			Make(&Settings);
			ShowPanel(Window, 600, 400);
		}
		~FFileActionsTest() override { Files.reset(); }

		void Make(QSettings* Where)
		{
			Files.reset();
			FileMenu->clear();
			EditMenu->clear();
			Files = std::make_unique<FFileActions>(Context, Window, Where);
			Files->FillFileMenu(*FileMenu);
			Files->FillEditMenu(*EditMenu);
			Files->AskToSave = [this](const QString& Name)
			{
				Asked += Name;
				return Answer;
			};
			Files->PickFileToOpen = [this](const QString& From)
			{
				PickedFrom = From;
				return Picked;
			};
			Files->PickFileToSave = [this](const QString& Suggestion)
			{
				PickedFrom = Suggestion;
				return Picked;
			};
			Files->ShowError = [this](const QString& Line) { Errors += Line; };
			Files->OnTitleChanged = [this](const QString& New) { Titles += New; };
		}
		QAction& Find(QMenu& Menu, const char* Text)
		{
			for (QAction* Action : Menu.actions())
			{
				if (Action->text() == QString::fromUtf8(Text))
				{
					return *Action;
				}
			}
			ADD_FAILURE() << Text;
			return *Menu.actions().first();
		}
		void Choose(const char* Text) { Find(*FileMenu, Text).trigger(); }
		AActor* Place() { return FActorEdits::Place(AActor::StaticClass(), FVector(), FRotator()); }
		int CountActors(int World = 0)
		{
			int Count = 0;
			for (const AActor* Actor : Editor.GetWorld(World)->PersistentLevel->Actors)
			{
				Count += IsValid(Actor) ? 1 : 0;
			}
			return Count;
		}
		QString InFolder(const char* Name) { return Folder.filePath(QString::fromUtf8(Name)); }
		void Write(const char* Name, const QByteArray& Bytes)
		{
			QFile File(InFolder(Name));
			ASSERT_TRUE(File.open(QIODevice::WriteOnly));
			File.write(Bytes);
		}
		QByteArray Read(const char* Name)
		{
			QFile File(InFolder(Name));
			return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
		}

		QTemporaryDir Folder;
		QSettings Settings;
		QMainWindow Window;
		QMenu* FileMenu = nullptr;
		QMenu* EditMenu = nullptr;
		std::unique_ptr<FFileActions> Files;
		EAnswer Answer = EAnswer::Cancel;
		QString Picked;
		QString PickedFrom;
		QStringList Asked;
		QStringList Errors;
		QStringList Titles;
	};
}

TEST_F(FFileActionsTest, HasTheUsualKeys)
{
	EXPECT_EQ(Find(*FileMenu, "&New Level").shortcut(), QKeySequence(QStringLiteral("Ctrl+N")));
	EXPECT_EQ(Find(*FileMenu, "&Open Level…").shortcut(), QKeySequence(QStringLiteral("Ctrl+O")));
	EXPECT_EQ(Find(*FileMenu, "&Save Current Level").shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
	EXPECT_EQ(Find(*FileMenu, "Save Level &As…").shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+S")));
	EXPECT_EQ(Find(*EditMenu, "Undo").shortcut(), QKeySequence(QStringLiteral("Ctrl+Z")));
	EXPECT_EQ(Find(*EditMenu, "Redo").shortcut(), QKeySequence(QStringLiteral("Ctrl+Y")));
}

TEST_F(FFileActionsTest, SavesALevelThatHasNoFileWhereTheUserPicks)
{
	Place();
	Picked = InFolder("Main.json");
	QTest::keyClick(&Window, Qt::Key_S, Qt::ControlModifier);
	EXPECT_EQ(QFileInfo(PickedFrom).fileName(), QStringLiteral("Untitled.json"));
	EXPECT_TRUE(Read("Main.json").contains("\"Actor\""));
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Main.json"));
	EXPECT_EQ(LastSaid, QStringLiteral("Saved Main.json"));
	// From now on without a question, also by the toolbar's button.
	PickedFrom.clear();
	Place();
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Main.json*"));
	Editor.GetToolBar().OnSave.Execute();
	EXPECT_EQ(PickedFrom, QString());
	EXPECT_EQ(Read("Main.json").count("\"Actor\""), 2);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Main.json"));
}

TEST_F(FFileActionsTest, SavesNothingIfNoFileIsPicked)
{
	Place();
	EXPECT_FALSE(Files->Save());
	EXPECT_FALSE(Files->SaveAs());
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled*"));
	EXPECT_TRUE(Errors.isEmpty());
}

TEST_F(FFileActionsTest, SavesElsewhereAndGoesOnThere)
{
	Picked = InFolder("One.json");
	Choose("&Save Current Level");
	Picked = InFolder("Two.json");
	QTest::keyClick(&Window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
	EXPECT_EQ(PickedFrom, InFolder("One.json"));
	EXPECT_EQ(Files->GetPath(), InFolder("Two.json"));
	EXPECT_EQ(Read("Two.json"), Read("One.json"));
}

TEST_F(FFileActionsTest, TellsWhyALevelWasNotSavedAndKeepsItsNameAndItsMark)
{
	Picked = InFolder("Main.json");
	Files->Save();
	Place();
	Picked = InFolder("missing/Main.json");
	EXPECT_FALSE(Files->SaveAs());
	ASSERT_EQ(Errors.size(), 1);
	EXPECT_TRUE(Errors[0].startsWith(Picked + QStringLiteral(": "))) << Errors[0].toStdString();
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Main.json*"));
}

TEST_F(FFileActionsTest, OpensWhatIsPicked)
{
	Picked = QStringLiteral(QUILLON_SAMPLES_DIR "/studio.json");
	QTest::keyClick(&Window, Qt::Key_O, Qt::ControlModifier);
	EXPECT_GT(CountActors(), 0);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("studio.json"));
	EXPECT_EQ(LastSaid, QStringLiteral("Opened studio.json"));
	EXPECT_TRUE(Asked.isEmpty());
	EXPECT_EQ(QApplication::overrideCursor(), nullptr);
	const int Before = CountActors();
	Picked.clear();
	Choose("&Open Level…");
	EXPECT_EQ(PickedFrom, QStringLiteral(QUILLON_SAMPLES_DIR));
	EXPECT_EQ(CountActors(), Before) << "nothing was picked";
	EXPECT_TRUE(Errors.isEmpty());
}

TEST_F(FFileActionsTest, TellsWhatIsWrongWithAFileAndKeepsTheLevel)
{
	Place();
	Answer = EAnswer::Discard;
	Write("Broken.json", "{\"actors\":[{\"class\":\"Nothing\"}]}");
	Files->Open(InFolder("Broken.json"));
	ASSERT_EQ(Errors.size(), 1);
	EXPECT_TRUE(Errors[0].contains(QStringLiteral("Broken.json: "))) << Errors[0].toStdString();
	EXPECT_EQ(CountActors(), 1);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled*"));
	EXPECT_EQ(QApplication::overrideCursor(), nullptr);
	EXPECT_FALSE(Files->GetRecentFiles().contains(InFolder("Broken.json")));
}

TEST_F(FFileActionsTest, OpensALargeFile)
{
	Write("Large.json", QByteArray(5 << 20, ' ') + "{\"actors\":[]}");
	Files->Open(InFolder("Large.json"));
	EXPECT_TRUE(Errors.isEmpty());
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Large.json"));
}

TEST_F(FFileActionsTest, MakesANewLevelAndEmptiesTheSecondWorld)
{
	Picked = InFolder("Main.json");
	Files->Save();
	Editor.GetWorld(1)->SpawnActor(AActor::StaticClass());
	QTest::keyClick(&Window, Qt::Key_N, Qt::ControlModifier);
	EXPECT_TRUE(Asked.isEmpty());
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled"));
	EXPECT_EQ(Files->GetPath(), QString());
	EXPECT_EQ(CountActors(1), 0);
	Editor.GetWorld(1)->SpawnActor(AActor::StaticClass());
	Files->Open(InFolder("Main.json"));
	EXPECT_EQ(CountActors(1), 0);
}

TEST_F(FFileActionsTest, KeepsAllOnCancel)
{
	Picked = InFolder("Main.json");
	Files->Save();
	Place();
	Choose("&New Level");
	Choose("&Open Level…");
	Files->Open(InFolder("Main.json"));
	Choose("E&xit");
	EXPECT_EQ(Asked, QStringList(4, QStringLiteral("Main.json")));
	EXPECT_EQ(CountActors(), 1);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Main.json*"));
	EXPECT_TRUE(Window.isVisible());
	EXPECT_FALSE(Read("Main.json").contains("\"Actor\""));
}

TEST_F(FFileActionsTest, DiscardsIfItIsToldTo)
{
	Place();
	Answer = EAnswer::Discard;
	Choose("&New Level");
	EXPECT_EQ(CountActors(), 0);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled"));
	Place();
	Choose("E&xit");
	EXPECT_FALSE(Window.isVisible());
}

TEST_F(FFileActionsTest, SavesFirstIfItIsToldTo)
{
	Place();
	Answer = EAnswer::Save;
	Picked = InFolder("Main.json");
	Choose("&New Level");
	EXPECT_TRUE(Read("Main.json").contains("\"Actor\""));
	EXPECT_EQ(CountActors(), 0);
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled"));
}

TEST_F(FFileActionsTest, KeepsAllIfThatSaveFailsOrIsCancelled)
{
	Place();
	Answer = EAnswer::Save;
	Choose("&New Level");
	EXPECT_EQ(CountActors(), 1) << "no file was picked";
	Picked = InFolder("missing/Main.json");
	Choose("&New Level");
	Choose("E&xit");
	EXPECT_EQ(Errors.size(), 2);
	EXPECT_EQ(CountActors(), 1);
	EXPECT_TRUE(Window.isVisible());
}

TEST_F(FFileActionsTest, AsksForAnAssetThatIsNotSavedAsWell)
{
	UObject* Asset = FEditorAssets::Make("/Game/Thing", UTextureRenderTarget2D::StaticClass());
	Asset->MarkPackageDirty();
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Untitled*"));
	Window.close();
	EXPECT_EQ(Asked, QStringList({QStringLiteral("Untitled")}));
	EXPECT_TRUE(Window.isVisible());
}

TEST_F(FFileActionsTest, ClosesAtOnceIfAllIsSaved)
{
	Window.close();
	EXPECT_TRUE(Asked.isEmpty());
	EXPECT_FALSE(Window.isVisible());
}

TEST_F(FFileActionsTest, NeverAsksAScriptNorSavesForIt)
{
	Files.reset();
	Context.Use = EEditorViewUse::Script;
	EXPECT_FALSE(Editor.GetToolBar().OnSave.IsBound()) << "nobody saves any more";
	Make(nullptr);
	EXPECT_FALSE(Editor.GetToolBar().OnSave.IsBound());
	Place();
	Window.close();
	EXPECT_TRUE(Asked.isEmpty());
	EXPECT_FALSE(Window.isVisible());
}

TEST_F(FFileActionsTest, TellsTheTitleOnlyWhenItChanges)
{
	Files->Poll();
	Files->Poll();
	EXPECT_EQ(Titles, QStringList({QStringLiteral("Untitled")}));
	Place();
	Advance(0.1);
	Files->Poll();
	EXPECT_EQ(Titles.size(), 1) << "assets are not asked in each frame";
	Advance(0.2);
	Files->Poll();
	EXPECT_EQ(Titles.last(), QStringLiteral("Untitled*"));
	Picked = InFolder("Main.json");
	Files->Save();
	EXPECT_EQ(Titles.last(), QStringLiteral("Main.json"));
	EXPECT_EQ(Titles.size(), 3);
}

TEST_F(FFileActionsTest, UndoesAndRedoesByName)
{
	Files->Poll();
	EXPECT_FALSE(Find(*EditMenu, "Undo").isEnabled());
	EXPECT_FALSE(Find(*EditMenu, "Redo").isEnabled());
	Place();
	Files->Poll();
	EXPECT_TRUE(Find(*EditMenu, "Undo Create Actors").isEnabled());
	QTest::keyClick(&Window, Qt::Key_Z, Qt::ControlModifier);
	EXPECT_EQ(CountActors(), 0);
	EXPECT_EQ(LastSaid, QStringLiteral("Undo: Create Actors"));
	Files->Poll();
	EXPECT_TRUE(Find(*EditMenu, "Redo Create Actors").isEnabled());
	EXPECT_FALSE(Find(*EditMenu, "Undo").isEnabled());
	QTest::keyClick(&Window, Qt::Key_Y, Qt::ControlModifier);
	EXPECT_EQ(CountActors(), 1);
	EXPECT_EQ(LastSaid, QStringLiteral("Redo: Create Actors"));
}

TEST_F(FFileActionsTest, RemembersTheLevelsThatWereOpenNewestFirst)
{
	for (int Index = 0; Index < 12; ++Index)
	{
		Picked = Folder.filePath(QStringLiteral("Level & %1.json").arg(Index));
		Files->SaveAs();
	}
	Files->Open(Folder.filePath(QStringLiteral("Level & 5.json")));
	QStringList Recent = Files->GetRecentFiles();
	ASSERT_EQ(Recent.size(), 10);
	EXPECT_EQ(Recent[0], Folder.filePath(QStringLiteral("Level & 5.json")));
	EXPECT_EQ(Recent.count(Recent[0]), 1);
	Make(&Settings);
	QMenu* Menu = Find(*FileMenu, "&Recent Levels").menu();
	ASSERT_NE(Menu, nullptr);
	ASSERT_EQ(Menu->actions().size(), 10);
	EXPECT_EQ(Menu->actions()[1]->text(), QStringLiteral("2 Level && 11.json"));
	Menu->actions()[1]->trigger();
	QCoreApplication::processEvents();
	EXPECT_EQ(Files->GetTitle(), QStringLiteral("Level & 11.json"));
}

TEST_F(FFileActionsTest, RemembersNothingWithoutSettings)
{
	Make(nullptr);
	Picked = InFolder("Main.json");
	EXPECT_TRUE(Files->Save());
	EXPECT_TRUE(Files->GetRecentFiles().isEmpty());
	for (const QAction* Action : FileMenu->actions())
	{
		EXPECT_EQ(Action->menu(), nullptr);
	}
}

TEST_F(FFileActionsTest, RefusesLevelsWithoutTheRegistryOfAssets)
{
	Place();
	FModuleManager::Get().UnloadModule("AssetRegistry");
	Picked = InFolder("Main.json");
	Choose("&New Level");
	Choose("&Open Level…");
	Choose("&Save Current Level");
	Choose("Save Level &As…");
	FModuleManager::Get().LoadModule("AssetRegistry");
	ASSERT_EQ(Errors.size(), 4);
	EXPECT_TRUE(Errors[0].contains(QStringLiteral("AssetRegistry")));
	EXPECT_EQ(CountActors(), 1);
	EXPECT_FALSE(QFileInfo::exists(Picked));
}

TEST_F(FFileActionsTest, HasAnEditBoxCommitBeforeItSaves)
{
	auto* Box = new QLineEdit(&Window);
	Window.setCentralWidget(Box);
	QObject::connect(Box, &QLineEdit::editingFinished, Box, [this] { Place(); });
	Box->show();
	Box->setFocus();
	QTest::keyClicks(Box, QStringLiteral("x"));
	Picked = InFolder("Main.json");
	QTest::keyClick(Box, Qt::Key_S, Qt::ControlModifier);
	EXPECT_TRUE(Read("Main.json").contains("\"Actor\""));
	EXPECT_TRUE(Box->hasFocus());
}
