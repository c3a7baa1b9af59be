// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "Framework/Docking/TabManager.h"
#include "GameFramework/Actor.h"
#include "LevelToolBar.h"
#include "Modules/ModuleManager.h"
#include "Panels/LevelToolBarView.h"
#include "ToolMenus.h"
#include "WindowFixture.h"

namespace
{
	class FLevelToolBarViewTest : public FWindowFixture
	{
	protected:
		FLevelToolBarViewTest()
		{
			View = std::make_unique<FLevelToolBarView>(Context);
			ShowPanel(*View, 500, 80);
			Frame(*View);
		}
		~FLevelToolBarViewTest() override { UToolMenus::UnregisterOwner("WindowTest"); }

		QToolButton& Find(const char* Caption)
		{
			QToolButton* Button = View->FindButton(QString::fromLatin1(Caption));
			EXPECT_NE(Button, nullptr) << Caption;
			return Button ? *Button : Missing;
		}
		void Place() { FActorEdits::Place(AActor::StaticClass(), FVector(), FRotator()); }
		int CountActors()
		{
			int Count = 0;
			for (const AActor* Actor : Editor.GetWorld(0)->PersistentLevel->Actors)
			{
				Count += IsValid(Actor) ? 1 : 0;
			}
			return Count;
		}
		void AddButton(const TCHAR* Label, const FUIAction& Action = FUIAction())
		{
			const FToolMenuOwnerScoped Owner("WindowTest");
			UToolMenus::Get()
				->ExtendMenu("LevelEditor.LevelEditorToolBar")
				->FindOrAddSection("Test")
				.AddEntry(FToolMenuEntry::InitToolBarButton(FName(Label), Action, FText::FromString(Label)));
		}

		std::unique_ptr<FLevelToolBarView> View;
		QToolButton Missing;
	};
}

TEST_F(FLevelToolBarViewTest, ShowsTheEditorsButtonsAndThePlugins)
{
	for (const char* Caption : {"Save Current", "Undo", "Redo", "Corvane"})
	{
		const QToolButton& Button = Find(Caption);
		EXPECT_TRUE(Button.isVisible());
		EXPECT_EQ(Button.text(), QString::fromLatin1(Caption));
		EXPECT_EQ(Button.iconSize(), QSize(40, 40));
		EXPECT_FALSE(Button.icon().isNull()) << Caption;
		EXPECT_EQ(Button.accessibleName(), QString::fromLatin1(Caption));
	}
	EXPECT_LT(Find("Save Current").mapTo(View.get(), QPoint()).x(), Find("Undo").mapTo(View.get(), QPoint()).x());
	EXPECT_LT(Find("Redo").mapTo(View.get(), QPoint()).x(), Find("Corvane").mapTo(View.get(), QPoint()).x());
	Grab(*View, "toolbar");
}

TEST_F(FLevelToolBarViewTest, SeparatesSections)
{
	int Separators = 0;
	for (const QAction* Action : View->findChild<QToolBar*>()->actions())
	{
		Separators += Action->isSeparator() ? 1 : 0;
	}
	// File, Edit, Settings.
	EXPECT_EQ(Separators, 2);
}

TEST_F(FLevelToolBarViewTest, EnablesUndoAndRedoWhileThereIsAStep)
{
	EXPECT_FALSE(Find("Undo").isEnabled());
	EXPECT_FALSE(Find("Redo").isEnabled());
	Place();
	Frame(*View);
	EXPECT_TRUE(Find("Undo").isEnabled());
	EXPECT_TRUE(Find("Undo").toolTip().contains(QStringLiteral("Undo: Create Actors (Ctrl+Z)")));
	QTest::mouseClick(&Find("Undo"), Qt::LeftButton);
	Frame(*View);
	EXPECT_EQ(CountActors(), 0);
	EXPECT_FALSE(Find("Undo").isEnabled());
	EXPECT_TRUE(Find("Undo").toolTip().contains(QStringLiteral("Undo (Ctrl+Z)")));
	EXPECT_TRUE(Find("Redo").toolTip().contains(QStringLiteral("Redo: Create Actors (Ctrl+Y)")));
	QTest::mouseClick(&Find("Redo"), Qt::LeftButton);
	EXPECT_EQ(CountActors(), 1);
}

TEST_F(FLevelToolBarViewTest, IsPressedByTheKeyboard)
{
	Place();
	Frame(*View);
	Find("Undo").setFocus(Qt::TabFocusReason);
	QTest::keyClick(&Find("Undo"), Qt::Key_Return);
	EXPECT_EQ(CountActors(), 0);
	Frame(*View);
	Find("Redo").setFocus(Qt::TabFocusReason);
	QTest::keyClick(&Find("Redo"), Qt::Key_Space);
	EXPECT_EQ(CountActors(), 1);
	Frame(*View);
	QTest::keyClick(&Find("Undo"), Qt::Key_Down);
	EXPECT_EQ(CountActors(), 1) << "only a button with a menu opens downwards";
}

TEST_F(FLevelToolBarViewTest, IsReachedByTheTabKey)
{
	Place();
	Frame(*View);
	Find("Undo").setFocus(Qt::TabFocusReason);
	QTest::keyClick(&Find("Undo"), Qt::Key_Tab);
	EXPECT_TRUE(Find("Corvane").hasFocus()) << "redo has nothing to do, and is passed by";
}

TEST_F(FLevelToolBarViewTest, SavesOnlyWhereSomebodySaves)
{
	EXPECT_FALSE(Find("Save Current").isEnabled());
	int Saved = 0;
	Editor.GetToolBar().OnSave = FSimpleDelegate::CreateLambda([&Saved] { ++Saved; });
	Frame(*View);
	QTest::mouseClick(&Find("Save Current"), Qt::LeftButton);
	EXPECT_EQ(Saved, 1);
}

TEST_F(FLevelToolBarViewTest, TakesTheFocusByAClickSoThatEditBoxesCommit)
{
	Place();
	Frame(*View);
	QTest::mouseClick(&Find("Undo"), Qt::LeftButton);
	EXPECT_TRUE(Find("Undo").hasFocus());
}

TEST_F(FLevelToolBarViewTest, OpensAMenuByClickAndByEveryUsualKey)
{
	QToolButton& Button = Find("Corvane");
	const auto Close = [this]
	{
		ASSERT_NE(View->GetMenu(), nullptr);
		EXPECT_TRUE(View->GetMenu()->isVisible());
		QTest::keyClick(View->GetMenu(), Qt::Key_Escape);
		EXPECT_EQ(View->GetMenu(), nullptr);
		Frame(*View);
	};
	QTest::mouseClick(&Button, Qt::LeftButton);
	Close();
	for (const Qt::Key Key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down, Qt::Key_Space})
	{
		QTest::keyClick(&Button, Key);
		Close();
	}
	QTest::keyClick(&Button, Qt::Key_Down, Qt::AltModifier);
	Close();
}

TEST_F(FLevelToolBarViewTest, OpensTheMenuBelowTheButton)
{
	QToolButton& Button = Find("Corvane");
	QTest::mouseClick(&Button, Qt::LeftButton);
	ASSERT_NE(View->GetMenu(), nullptr);
	EXPECT_EQ(View->GetMenu()->pos(), Button.mapToGlobal(QPoint(0, Button.height())));
	View->CloseMenu();
	EXPECT_EQ(View->GetMenu(), nullptr);
}

TEST_F(FLevelToolBarViewTest, OpensTheWizardFromTheMenu)
{
	QTest::keyClick(&Find("Corvane"), Qt::Key_Return);
	ASSERT_NE(View->GetMenu(), nullptr);
	QTest::keyClicks(View->GetMenu(), QStringLiteral("wiz"));
	QTest::keyClick(View->GetMenu(), Qt::Key_Return);
	Frame(*View);
	EXPECT_EQ(FGlobalTabmanager::Get()->GetOpenTabs().Num(), 1);
}

TEST_F(FLevelToolBarViewTest, FollowsModulesThatComeAndGo)
{
	const QPointer<QToolButton> Undo = &Find("Undo");
	Frame(*View);
	EXPECT_FALSE(Undo.isNull()) << "made anew for nothing";
	QTest::mouseClick(&Find("Corvane"), Qt::LeftButton);
	Editor.ClosePanels();
	FModuleManager::Get().UnloadModule("QuillonEditor");
	Frame(*View);
	EXPECT_EQ(View->FindButton(QStringLiteral("Corvane")), nullptr);
	EXPECT_EQ(View->GetMenu(), nullptr) << "the menu of a module that has gone";
	FModuleManager::Get().LoadModule("QuillonEditor");
	Frame(*View);
	EXPECT_TRUE(Find("Corvane").isVisible());
}

TEST_F(FLevelToolBarViewTest, DoesNothingForAButtonThatChangedSinceItWasShown)
{
	QToolButton& Button = Find("Corvane");
	Editor.ClosePanels();
	FModuleManager::Get().UnloadModule("QuillonEditor");
	QTest::mouseClick(&Button, Qt::LeftButton);
	EXPECT_EQ(View->GetMenu(), nullptr);
	EXPECT_EQ(LastSaid, QString());
}

TEST_F(FLevelToolBarViewTest, ShowsALabelThatChangesAndDoesNothingBeforeThat)
{
	int Pressed = 0;
	const FUIAction Action(FExecuteAction::CreateLambda([&Pressed] { ++Pressed; }));
	const auto Add = [&Action](const TCHAR* Label)
	{
		const FToolMenuOwnerScoped Owner("WindowTest");
		UToolMenus::Get()
			->ExtendMenu("LevelEditor.LevelEditorToolBar")
			->FindOrAddSection("Test")
			.AddEntry(FToolMenuEntry::InitToolBarButton("Name", Action, FText::FromString(Label)));
	};
	Add(TEXT("Before"));
	Frame(*View);
	QToolButton& Before = Find("Before");
	Add(TEXT("After"));
	QTest::mouseClick(&Before, Qt::LeftButton);
	EXPECT_EQ(Pressed, 0) << "that is not what the user saw";
	Frame(*View);
	EXPECT_EQ(View->FindButton(QStringLiteral("Before")), nullptr);
	QTest::mouseClick(&Find("After"), Qt::LeftButton);
	EXPECT_EQ(Pressed, 1);
}

TEST_F(FLevelToolBarViewTest, SaysWhyNoMenuOpens)
{
	const FToolMenuOwnerScoped Owner("WindowTest");
	UToolMenus::Get()
		->ExtendMenu("LevelEditor.LevelEditorToolBar")
		->FindOrAddSection("Test")
		.AddEntry(FToolMenuEntry::InitComboButton("Empty", FUIAction(), FOnGetContent()));
	Frame(*View);
	// Without a label the name stands for it.
	QTest::mouseClick(&Find("Empty"), Qt::LeftButton);
	EXPECT_EQ(LastSaid, QStringLiteral("the button \"Empty\" opens no menu"));
}

TEST_F(FLevelToolBarViewTest, DoesWhatAPlainButtonOfAModuleDoesThoughItRemovesItself)
{
	int Pressed = 0;
	AddButton(TEXT("Vanish"),
		FUIAction(FExecuteAction::CreateLambda(
			[&Pressed]
			{
				++Pressed;
				UToolMenus::UnregisterOwner("WindowTest");
			})));
	Frame(*View);
	QTest::mouseClick(&Find("Vanish"), Qt::LeftButton);
	EXPECT_EQ(Pressed, 1);
	Frame(*View);
	EXPECT_EQ(View->FindButton(QStringLiteral("Vanish")), nullptr);
}

TEST_F(FLevelToolBarViewTest, ShowsLabelsAsTheyAre)
{
	AddButton(TEXT("Cut & Run\nNow with a label that no toolbar has room for"));
	Frame(*View);
	QToolButton& Button = Find("Cut & Run\nNow with a label that no toolbar has room for");
	EXPECT_TRUE(Button.text().startsWith(QStringLiteral("Cut && Run Now")));
	EXPECT_LE(Button.width(), 160);
	Grab(*View, "toolbar-long");
}

TEST_F(FLevelToolBarViewTest, KeepsButtonsWithinReachWhereTheWindowIsNarrow)
{
	View->resize(150, 80);
	Frame(*View);
	EXPECT_FALSE(Find("Corvane").isVisible());
	const QList<QToolButton*> All = View->findChildren<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
	ASSERT_EQ(All.size(), 1);
	EXPECT_TRUE(All[0]->isVisible());
	for (QAction* Action : View->findChild<QToolBar*>()->actions())
	{
		if (Action->text() == QStringLiteral("Corvane"))
		{
			Action->trigger();
		}
	}
	EXPECT_NE(View->GetMenu(), nullptr);
	View->CloseMenu();
	Grab(*View, "toolbar-narrow");
}
